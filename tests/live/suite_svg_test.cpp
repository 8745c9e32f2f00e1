#include <gtest/gtest.h>

#include <string>

#include "office/libreoffice/excel/suite_svg.h"

namespace live {

namespace {

std::string mended(const std::string& content) {
    return libreoffice::excel::mended(
        {.text =
             "<svg width=\"13mm\" height=\"8mm\" viewBox=\"0 0 1300 800\" stroke-width=\"28.222\" "
             "xml:space=\"preserve\">" +
             content + "</svg>",
         .pageWidth = 1296,
         .pageHeight = 794,
         .widthMm = 12.95,
         .heightMm = 7.93,
         .hairline = 8.8194});
}

TEST(SuiteSvg, IsAsLargeAsThePageAndDrawsHairlinesThin) {
    const std::string svg = mended("<path/>");
    for (const char* part :
         {R"svg(width="12.95mm" height="7.93mm" viewBox="0 0 1296 794")svg",
          R"svg(stroke-width="8.819")svg", R"svg(preserveAspectRatio="none")svg"})
        EXPECT_NE(svg.find(part), std::string::npos) << svg;
    EXPECT_EQ(mended("<path"), "");
}

TEST(SuiteSvg, IsMendedWhereTheExporterErrs) {
    struct Case {
        std::string written;
        std::string wanted;
    };
    const std::string clips = R"svg(<defs><clipPath id="c"/></defs>)svg";
    const std::string content = R"svg(<path d="M 0,0"/>)svg";
    const auto turned = [](const std::string& around) {
        return R"svg(<text transform="rotate(-45 )svg" + around +
               R"svg()"><tspan><tspan x="7" y="9"><tspan> a </tspan></tspan></tspan></text>)svg";
    };
    const auto clipped = [&](const std::string& corner, const std::string& clip) {
        return R"svg(<clipPath id="p"> <path d="M 0,0 L 1296,0 )svg" + corner +
               R"svg( 0,794 0,0 Z "/> </clipPath><g)svg" + clip + ">" + content + "</g>";
    };
    const std::string clip = R"svg( clip-path="url(#p)")svg";
    for (const auto& [written, wanted] : {
             Case{clipped("1296,794", clip), clipped("1296,794", "")},
             Case{clipped("1296,793", clip), clipped("1296,793", clip)},
             Case{turned("0 0") + turned("7 9"), turned("7 9") + turned("7 9")},
             Case{R"svg(<g style="opacity: 0.4"/>)svg" + clips +
                      R"svg(<g clip-path="url(#c)">)svg" + content +
                      R"svg(</g><g clip-path="url(#b)"/>)svg",
                  clips + R"svg(<g clip-path="url(#c)" style="opacity: 0.4">)svg" + content +
                      R"svg(</g><g clip-path="url(#b)"/>)svg"},
         }) {
        const std::string svg = mended(written);
        EXPECT_NE(svg.find(wanted), std::string::npos) << svg;
    }
}

}  // namespace

}  // namespace live
