#include <gtest/gtest.h>

#include "office/failure.h"
#include "office/vector_file.h"
#include "support/vector_file.h"

namespace office {

namespace {

std::string svg(const std::string& attributes, const std::string& content = "") {
    return "<svg xmlns='http://www.w3.org/2000/svg' " + attributes + ">" + content + "</svg>";
}

TEST(VectorFile, KnowsTheSizeThatAFileSays) {
    struct {
        std::string bytes;
        double width, height;
    } const files[] = {
        {svg("width='254mm' height='1in'"), 720, 72},
        {svg("width='96' height='48px'"), 72, 36},
        {svg("width='10cm' viewBox='0 0 20 10'"), 283.46, 141.73},
        {svg("width='100%' viewBox='0,0,192,96'"), 144, 72},
        {"\xEF\xBB\xBF<?xml version='1.0'?><!-- of a tool --><!DOCTYPE svg PUBLIC 'a' 'b'>" +
             svg("width='72pt' height='6pc'"),
         72, 72},
        {support::emfPictureOfPoints(300, 120), 300, 120},
    };
    for (const auto& file : files) {
        ASSERT_TRUE(looksLikeVectors(file.bytes)) << file.bytes;
        const VectorFile read = vectorFileOf(file.bytes, "It");
        EXPECT_NEAR(read.widthPt, file.width, 0.1) << file.bytes;
        EXPECT_NEAR(read.heightPt, file.height, 0.1) << file.bytes;
        EXPECT_EQ(read.bytes.find("DOCTYPE"), std::string::npos);
    }
}

TEST(VectorFile, TakesWhatStaysInside) {
    for (const char* content :
         {"<use href='#a'/>", "<image xlink:href='data:image/png;base64,AA=='/>",
          "<path fill='url(#g)' style='clip-path: url( &quot;#c&quot; )'/>",
          "<style>@font-face { font-family: x } .a { fill: url('#g') }</style>",
          "<text>Set url(http://a) on top, onclick=x</text>"})
        EXPECT_NO_THROW(static_cast<void>(vectorFileOf(svg("width='9' height='9'", content), "It")))
            << content;
}

TEST(VectorFile, RefusesWhatIsMoreThanAPicture) {
    for (const char* content : {"<script>1</script>",
                                "<s:SCRIPT>1</s:SCRIPT>",
                                "<g onload='1'/>",
                                "<g OnClick='1'/>",
                                "<image href='file:///etc/passwd'/>",
                                "<image xlink:href=' http://a/b.png'/>",
                                "<image href='other.png'/>",
                                "<use href='other.svg#a'/>",
                                "<a href='javascript:1'/>",
                                "<image href='data:image/svg+xml;base64,AA'/>",
                                "<image href='data:text/html,x'/>",
                                "<g xml:base='http://a/'/>",
                                "<path fill='url(http://a/#g)'/>",
                                "<path style='fill:URL( &quot;b.svg#g&quot;)'/>",
                                "<path style='fill:u\\72l(b.svg)'/>",
                                "<style>@import 'a.css';</style>",
                                "<style>.a{} <![CDATA[.b{fill:url(a)}]]></style>",
                                "<style>.a { mask: image-set('a.png' 1x) }</style>",
                                "<?xml-stylesheet href='a.css'?>",
                                "<foreignObject/>",
                                "<animate attributeName='href' to='http://a'/>",
                                "<set to='b'/>"})
        EXPECT_THROW(static_cast<void>(vectorFileOf(svg("width='9' height='9'", content), "It")),
                     Failure)
            << content;
    for (const std::string& bytes :
         {std::string("<html/>"), svg("width='9' height='9'").substr(0, 60), svg("width='100%'"),
          "<!DOCTYPE svg [<!ENTITY e SYSTEM 'file:///etc/passwd'>]>" + svg("width='9' height='9'"),
          std::string("\x1f\x8b packed"), support::emfPictureOfPoints(9, 9).substr(0, 100),
          support::emfPictureOfPoints(0, 9)}) {
        EXPECT_TRUE(looksLikeVectors(bytes)) << bytes;
        EXPECT_THROW(static_cast<void>(vectorFileOf(bytes, "It")), Failure) << bytes;
    }
}

}  // namespace

}  // namespace office
