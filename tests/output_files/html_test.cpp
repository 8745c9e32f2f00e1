#include <fmt/format.h>

#include "destinations/html_export.h"
#include "files_stage.h"
#include "office/model/excel/cells_as_page.h"

namespace {

using destinations::HtmlOptions;
using destinations::HtmlResult;
using stage::FilesStage;
using stage::ItemKind;
using stage::Names;

constexpr const char* pagesFolder = "MurvaneHTML";

class Html : public FilesStage {
protected:
    HtmlResult publish(HtmlOptions options = {}) {
        auto all = batch();
        return destinations::PublishRowsToHtml(all, withFolder(options));
    }
    HtmlResult exportImages(HtmlOptions options = {}) {
        auto all = batch();
        return destinations::ExportRowsToHtmlAsImages(all, withFolder(options));
    }
    HtmlOptions& withFolder(HtmlOptions& options) {
        if (options.folder.empty()) options.folder = destinations::defaultHtmlFolder(session);
        return options;
    }
    [[nodiscard]] std::string page(const HtmlResult& result) const {
        return host.home.read(std::filesystem::relative(result.file, host.home.path()).string());
    }
    static std::size_t count(const std::string& text, const std::string& what) {
        std::size_t found = 0;
        for (std::size_t at = text.find(what); at != std::string::npos; ++found)
            at = text.find(what, at + 1);
        return found;
    }
};

TEST(HtmlBlocks, AreWrittenToTheLetter) {
    destinations::HtmlBody body;
    destinations::AppendHtmlBlock(body, 700, 2, "HTML101/Temp1.png", "<i>2026</i>");
    destinations::AppendHtmlBlock(body, 52.5, 0, "a.png", "");
    body.useTitles = false;
    destinations::AppendHtmlBlock(body, 700, 100, "b.png", "unseen");
    std::string expected =
        "<div style='text-align: center;'><big><big><big><i>2026</i><br></big></big></big></div>"
        "<br><br><div style='text-align: center;'> \n<img style='width:700px; height:px;' "
        "alt='vfd'\nsrc=HTML101/Temp1.png></div>\n\n<br><br>"
        "<div style='text-align: center;'> \n<img style='width:52.5px; height:px;' "
        "alt='vfd'\nsrc=a.png></div>\n\n"
        "<div style='text-align: center;'> \n<img style='width:700px; height:px;' "
        "alt='vfd'\nsrc=b.png></div>\n\n";
    for (int i = 0; i < 100; ++i) expected += "<br>";
    EXPECT_EQ(body.text, expected);
}

TEST_F(Html, OfImagesNamesEachByItsRowAndTakesTheFirstFreeNumber) {
    addChart("A", "S", "Grüße <b>&</b>");
    add(ItemKind::Chart, "Gone", "S");
    addChart("C", "S");
    host.makeFolder(host.home.file(pagesFolder));
    host.home.write(std::string(pagesFolder) + "/MurvaneHTML101.html", "theirs");
    std::filesystem::create_directories(host.home.file(pagesFolder) + "/HTML102");
    const std::string text = page(exportImages({.skipLines = 1}));
    EXPECT_EQ(filesIn(pagesFolder),
              (Names{"HTML102", "HTML103", "HTML103/Temp1.png", "HTML103/Temp3.png",
                     "MurvaneHTML101.html", "MurvaneHTML103.html"}));
    EXPECT_TRUE(text.starts_with("\xEF\xBB\xBF<div")) << "its encoding is known";
    EXPECT_EQ(count(text, "<big>Grüße <b>&</b><br></big>"), 1U);
    EXPECT_NE(text.find("src=HTML103/Temp3.png>"), std::string::npos);
    EXPECT_TRUE(text.ends_with("<br>\n"));
    EXPECT_EQ(failed, Names{"Gone"});
}

TEST_F(Html, TakesAlongWhatAnExcelOfAnotherLanguagePutsBesideThePage) {
    for (const char* number : {"101", "102"}) {
        destinations::HtmlFiles files(session, {.folder = host.home.file(pagesFolder)});
        host.writeFile(files.page(), "page");
        const std::string pictures = files.page().substr(0, files.page().rfind('.')) + "-Dateien";
        host.makeFolder(pictures);
        EXPECT_TRUE(files.keep().ends_with(std::string("/MurvaneHTML") + number + ".html"));
        std::filesystem::remove(host.home.file(pagesFolder) + "/MurvaneHTML101.html");
    }
    EXPECT_EQ(filesIn(pagesFolder),
              (Names{"MurvaneHTML101-Dateien", "MurvaneHTML102-Dateien", "MurvaneHTML102.html"}));
}

TEST_F(Html, ThatIsPublishedKeepsTablesAndEscapesAllThatComesFromTheWorkbook) {
    auto& sheet = book.sheet("S");
    sheet.value("A1", "<script>alert('1')</script>").value("B2", 42).define("T", "A1:B2");
    add(ItemKind::Range, "T", "S", "\"1\" < 2 & 'more'");
    sheet.chart("on <cells>", {0, 0, 96, 30});
    add(ItemKind::Chart, "on <cells>", "S");
    book.chartSheet("Trend").size(360, 240);
    add(ItemKind::ChartSheet, "", "Trend", "All of it");
    add(ItemKind::Range, "Gone", "S");
    add(ItemKind::Chart, "Gone", "S");
    book.setModified(false);
    const std::string text = page(publish());
    EXPECT_EQ(failed, (Names{"Gone", "Gone"}));
    EXPECT_EQ(reasons,
              (Names{"Named range 'Gone' not found.", "Chart 'Gone' was not found on sheet 'S'."}));
    EXPECT_EQ(count(text, "<script"), 0U);
    EXPECT_EQ(count(text, "&lt;script&gt;alert(&#39;1&#39;)"), 2U) << "twice as cells";
    EXPECT_EQ(count(text, "<h2>&quot;1&quot; &lt; 2 &amp; &#39;more&#39;</h2>"), 1U);
    EXPECT_EQ(count(text, "<title>Book &amp; 1</title>"), 1U);
    EXPECT_EQ(count(text, "<table"), 2U);
    EXPECT_EQ(count(text, "<img"), 3U);
    EXPECT_EQ(count(text, "alt=\"on &lt;cells&gt;\""), 2U);
    EXPECT_EQ(count(text, "alt=\"All of it\""), 1U);
    EXPECT_EQ(count(text, "src=\"MurvaneHTML101_files/image001.png\""), 1U);
    EXPECT_EQ(count(text, "style=\"width:480px;height:320px\""), 1U) << "its true size";
    EXPECT_TRUE(text.ends_with("</body>\n</html>\n"));
    EXPECT_EQ(count(text, "</body>"), 1U);
    EXPECT_EQ(filesIn(pagesFolder).size(), 5U);
    EXPECT_EQ(book.sheetNames(), (Names{"S", "Trend"}));
    EXPECT_FALSE(book.isModified());
    EXPECT_TRUE(session.ExcelApp.get("DisplayAlerts").toBool());
}

TEST(Cells, NameTheirFontAndItsKindAndLetNoNameOutOfItsStyle) {
    for (const auto& [font, family] : {std::pair("A&#39;;B'\"", "'A&amp;#39B',sans-serif"),
                                       {"Courier New", "'Courier New',monospace"},
                                       {"Century", "'Century',serif"},
                                       {"DejaVu Serif", "'DejaVu Serif',serif"},
                                       {"Noto Sans Mono", "'Noto Sans Mono',monospace"},
                                       {"Century Gothic", "'Century Gothic',sans-serif"}}) {
        office::CellLook cell;
        cell.text = "x";
        cell.fontName = font;
        const std::string markup = office::model::excel::cellsAsPage({{50}, {15}, {cell}}, {});
        EXPECT_NE(markup.find(fmt::format("font-family:{};", family)), std::string::npos) << markup;
    }
}

TEST_F(Html, ThatIsPublishedNeedsNoSheetForBlankLinesAndNoBlankLines) {
    addChart("A", "S");
    const office::Value records = session.ActiveBook.get("PublishObjects");
    records.call("Add", 4, host.home.file("theirs.html"), "S", "A1");
    book.sheet("kukuMurvaneReservedName02");
    const std::string plain = page(publish({.skipLines = 0}));
    book.protectStructure();
    const std::string bare = page(publish());
    EXPECT_EQ(count(plain, "class=\"item\""), 2U) << "the top and the chart";
    EXPECT_EQ(book.sheetNames(), Names{"S"}) << "what a killed run has left is gone";
    EXPECT_EQ(count(bare, "class=\"item\""), 1U);
    EXPECT_EQ(count(bare, "<img"), 1U);
    EXPECT_TRUE(book.structureIsProtected());
    EXPECT_EQ(records.get("Count").toLong(), 1) << "the user's own";
}

TEST_F(Html, ThatIsPublishedTakesTheFirstChartOfAWorksheetThatWasAChartSheet) {
    book.sheet("Former").chart("First").chart("Second");
    add(ItemKind::ChartSheet, "", "Former");
    const std::string text = page(publish());
    EXPECT_EQ(failed, Names{});
    EXPECT_EQ(count(text, "<img"), 1U);
    EXPECT_EQ(count(text, "alt=\"First\""), 1U);
}

TEST_F(Html, LeavesNothingOfAnExportThatFailed) {
    addChart("A", "S");
    addChart("B", "S");
    book.setModified(false);
    suite.failures().fail("PublishObject.Publish", 4, office::FailureNumber::PathFileAccess);
    EXPECT_EQ(support::failureOf([&] { publish(); }), 75);
    EXPECT_EQ(book.sheetNames(), Names{"S"});
    EXPECT_FALSE(book.isModified());
    EXPECT_EQ(session.ActiveBook.get("PublishObjects").get("Count").toLong(), 0);
    for (auto& row : list.rows) row.name = "Gone";
    EXPECT_EQ(publish().file, "");
    EXPECT_EQ(exportImages().file, "");
    EXPECT_EQ(filesIn(pagesFolder), Names{});
    host.home.write("file", "x");
    const HtmlOptions nowhere{.folder = host.home.file("file") + "/below"};
    EXPECT_EQ(support::failureOf([&] { publish(nowhere); }), 75);
    EXPECT_EQ(support::failureOf([&] { exportImages(nowhere); }), 75);
    EXPECT_EQ(book.sheetNames(), Names{"S"});
}

}  // namespace
