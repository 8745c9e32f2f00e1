#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "live/live_suite.h"

namespace live {

namespace {

/// What the validator has to say of a page; nothing of a good one.
std::string complaintsAbout(const std::string& page) {
    const std::string command = "tidy -q -e '" + page + "' 2>&1";
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(::popen(command.c_str(), "r"),
                                                                 &::pclose);
    std::string said;
    for (int sign = std::fgetc(output.get()); sign != EOF; sign = std::fgetc(output.get()))
        said += static_cast<char>(sign);
    return said;
}

class ExcelPages : public ExcelLive {
protected:
    /// Everything on a sheet, on a page of its own.
    std::string published(const Object& book, const char* sheetName, const std::string& address) {
        const std::string page = file("page with blanks.html");
        const Value record =
            book.get("PublishObjects").call("Add", 4, page, sheetName, address, 0, "", "Title");
        record.call("Publish", true);
        EXPECT_EQ(complaintsAbout(page), "");
        std::ostringstream text;
        text << std::ifstream(page).rdbuf();
        return text.str();
    }

    static void expectHas(const std::string& page, const std::vector<std::string>& all) {
        for (const std::string& each : all) EXPECT_NE(page.find(each), std::string::npos) << each;
    }
};

TEST_F(ExcelPages, KeepTheLooksOfCellsInMarkupThatIsValid) {
    const Object book = open("tables.xlsx");
    expectHas(published(book, "Looks", "A1:G7"),
              {"font-weight:bold;font-style:italic;text-decoration:underline line-through",
               "text-decoration:underline double", "font-size:18.67px", "background-color:#00ff00",
               "&lt;&amp;lt;&gt; &quot;q&quot; <", "class=\"wraps\"", "by\nhand",
               "<div class=\"upwards\"", "colspan=\"2\" rowspan=\"2\"",
               "text-align:right;padding-right:", "border-bottom:"});
    EXPECT_TRUE(book.get("Saved").toBool());
}

TEST_F(ExcelPages, ShowBarsAndTheChartsThatLieOnTheCells) {
    expectHas(published(open("cells.xlsx"), "Bars", "A1:D4"), {"linear-gradient(to right,#"});
    const Object charts = open("charts.xlsx");
    const Object second = sheet(charts, "Data").call("ChartObjects", 2).toObject();
    const std::string corner = second.get("TopLeftCell").get("Address").toText();
    const std::string page = published(
        charts, "Data", corner + ":" + second.get("BottomRightCell").get("Address").toText());
    const std::size_t image = page.find("<img src=\"page%20with%20blanks_files/image00");
    ASSERT_NE(image, std::string::npos);
    EXPECT_EQ(page.find("<img", image + 1), std::string::npos)
        << "the neighbours stick into its cells";
    double left = -1, top = -1;
    ASSERT_EQ(
        std::sscanf(page.c_str() + page.find("left:", image), "left:%lfpx;top:%lfpx", &left, &top),
        2);
    EXPECT_NEAR(left, 0, 1) << "it begins with its cell, wherever that is on the sheet";
    EXPECT_NEAR(top, 0, 1);
}

TEST_F(ExcelPages, CostFewCallsForAChartOnBlankCells) {
    const Object book = open("charts.xlsx");
    const Object charts = sheet(book, "Data").call("ChartObjects").toObject();
    const auto placeOf = [&](std::int32_t which) {
        const Object chart = charts.get("Item", which).toObject();
        return chart.get("TopLeftCell").get("Address").toText() + ":" +
               chart.get("BottomRightCell").get("Address").toText();
    };
    const auto publish = [&](std::int32_t which) { published(book, "Data", placeOf(which)); };
    const std::string second = placeOf(2);
    publish(1);
    EXPECT_EQ(placeOf(2), second) << "as its place on the sheet is remembered by now";
    EXPECT_LT(callsOf([&] { publish(2); }), 14U);
    EXPECT_LT(callsOf([&] { static_cast<void>(placeOf(2)); }), 5U) << "those that find it";
    const auto publishGap = [&] { published(book, "Data", "Z90:Z99"); };
    publishGap();
    EXPECT_LT(callsOf(publishGap), 10U) << "known by now";
}

TEST_F(ExcelPages, TakeMoreCellsThanATableElsewhere) {
    const Object book = open("tables.xlsx");
    const Object sheets = book.get("Worksheets").toObject();
    const Object large = sheets.call("Add").toObject();
    large.get("Range", "A1:T1000").put("Value", 7);
    const std::string page = published(book, large.get("Name").toText().c_str(), "A1:T1000");
    std::size_t cells = 0;
    for (std::size_t at = page.find(">7</td>"); at != std::string::npos; ++cells)
        at = page.find(">7</td>", at + 1);
    EXPECT_EQ(cells, 20000U);
    EXPECT_EQ(failureOf([&] { published(book, large.get("Name").toText().c_str(), "A1:CV1001"); }),
              refused);
}

}  // namespace

}  // namespace live
