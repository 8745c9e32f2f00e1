#include <com/sun/star/document/XDocumentEventBroadcaster.hpp>
#include <com/sun/star/lang/Locale.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/CellVertJustify2.hpp>
#include <com/sun/star/text/WritingMode2.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/util/XNumberFormatTypes.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>
#include <com/sun/star/util/XProtectable.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>
#include <cppuhelper/implbase1.hxx>
#include <fmt/format.h>

#include <utility>

#include "live/live_suite.h"
#include "office/copied.h"
#include "office/libreoffice/excel/cells_as_html.h"
#include "office/libreoffice/excel/chart_shapes.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace live {

namespace {

namespace css = libreoffice::css;
namespace uno = libreoffice::uno;
using libreoffice::as;
using office::CellLine;
using office::CellLook;
using office::TableLook;

std::string described(const char* side, const CellLine& line) {
    constexpr const char* styles[] = {"", " dashed", " dotted", " double"};
    if (line.widthPt == 0) return "";
    return fmt::format(" {}={:.1f}{}{}", side, line.widthPt,
                       styles[static_cast<std::size_t>(line.style)],
                       line.colour != 0 ? fmt::format(" {:06X}", line.colour) : "");
}

/// What is particular to a cell: all that differs from black 11 pt Calibri at the bottom left.
std::string described(const CellLook& look) {
    if (look.isCovered) return "covered";
    std::string all = look.text;
    for (const auto& [holds, word] : {std::pair(look.isBold, " bold"),
                                      {look.isItalic, " italic"},
                                      {look.isUnderlined, " underlined"},
                                      {look.isUnderlinedTwice, " twice"},
                                      {look.isStruckOut, " struck"},
                                      {look.across == CellLook::Across::Centre, " centre"},
                                      {look.across == CellLook::Across::Right, " right"},
                                      {look.across == CellLook::Across::Justified, " justified"},
                                      {look.down == CellLook::Down::Top, " top"},
                                      {look.down == CellLook::Down::Middle, " middle"},
                                      {look.wraps, " wraps"}}) {
        if (holds) all += word;
    }
    if (look.fontName != "Calibri") all += " " + look.fontName;
    if (look.fontSizePt != 11) all += fmt::format(" {:.2g}pt", look.fontSizePt);
    if (look.fontColour != 0) all += fmt::format(" ink={:06X}", look.fontColour);
    if (look.fill) all += fmt::format(" fill={:06X}", *look.fill);
    if (look.indentPt != 0) all += fmt::format(" indent={:.0f}", look.indentPt);
    if (look.rotation != 0) all += fmt::format(" turned={}", look.rotation);
    all += described("left", look.left) + described("right", look.right) +
           described("top", look.top) + described("bottom", look.bottom) +
           described("falling", look.falling) + described("rising", look.rising);
    if (look.columns * look.rows > 1) all += fmt::format(" {}x{}", look.columns, look.rows);
    return all;
}

/// Notes what is selected when the suite writes a copy of the workbook.
class SelectionAtCopy : public cppu::WeakImplHelper1<css::document::XDocumentEventListener> {
public:
    explicit SelectionAtCopy(std::vector<std::string>& seen) : seen_(seen) {}
    void SAL_CALL documentEventOccured(const css::document::DocumentEvent& event) override {
        if (event.EventName != "OnCopyTo") return;
        const auto window = as<css::frame::XModel>(event.Source)->getCurrentController();
        const uno::Reference<css::table::XCellRange> cells(
            as<css::view::XSelectionSupplier>(window)->getSelection(), uno::UNO_QUERY);
        seen_.push_back(addressOf(libreoffice::excel::blockOf(cells)));
    }
    void SAL_CALL disposing(const css::lang::EventObject& /*source*/) override {}

private:
    std::vector<std::string>& seen_;
};

class ExcelTables : public ExcelLive {
protected:
    [[nodiscard]] TableLook tableOf(const char* sheetName, const char* address) {
        sheet(book, sheetName).get("Range", address).call("Copy");
        return desk->clipboard().copied->table();
    }

    Object book = open("tables.xlsx");
};

TEST_F(ExcelTables, LookAsTheirCellsDo) {
    const std::vector<std::string> expected = {
        "Styled bold italic underlined struck Arial 14pt ink=0000FF fill=00FF00 bottom=0.7",
        "1,234.50 EUR right bottom=0.7",
        "<&lt;> \"q\"  centre middle",
        "by\nhand top wraps bottom=1.8 FF0000",
        "up right turned=90 bottom=1.8 FF0000",
        "down turned=270",

        "merged fill=00EEFF left=0.7 right=0.7 top=0.7 bottom=0.7 2x2",
        "covered",
        "#DIV/0! right left=0.7 right=1.8 FF0000",
        "over hidden left=1.8 FF0000 right=1.8 FF0000 top=1.8 FF0000 bottom=1.8 FF0000 2x1",
        "covered",
        " left=1.8 FF0000",

        "covered",
        "covered",
        " left=0.7",
        " top=1.8 FF0000 bottom=0.7 0000FF",
        " top=1.8 FF0000",
        "begins shown 1x3",

        "indented indent=15 top=0.7",
        "right underlined twice right indent=8 top=0.7",
        "begins hidden bold right=0.7 dashed 1x2",
        "lines left=0.7 dashed right=0.7 dotted top=0.7 0000FF bottom=1.8 double 00FF00",
        " left=0.7 dotted",
        "covered",

        "",
        "",
        "covered",
        "beneath left=0.7 top=1.8 double 00FF00 falling=0.7 0000FF",
        "",
        "covered",

        "1 right fill=6B69F8",
        "2 right fill=84EBFF",
        "3 right fill=7BBE63",
        "-5 bold right ink=06009C fill=CEC7FF",
        "noted",
        "-1.50 right ink=0000FF",
    };
    const TableLook table = tableOf("Looks", "A1:G7");
    std::vector<std::string> found;
    for (const CellLook& look : table.cells) found.push_back(described(look));
    EXPECT_EQ(found, expected);
    ASSERT_EQ(table.columnWidthsPt.size(), 6U);
    ASSERT_EQ(table.rowHeightsPt.size(), 6U);
    const Object cells = sheet(book, "Looks").get("Range", "A1:G7").toObject();
    EXPECT_NEAR(table.widthPt(), cells.get("Width").toDouble(), 0.1);
    EXPECT_NEAR(table.heightPt(), cells.get("Height").toDouble(), 0.1);
    for (const double height : table.rowHeightsPt)
        EXPECT_NEAR(height, height == table.rowHeightsPt.front() ? 30 : 15, 3);
}

TEST_F(ExcelTables, HaveTheFirstColumnAtTheRightWhereTheSheetHasIt) {
    const TableLook usual = tableOf("Looks", "A1:G7");
    const uno::Reference<uno::XInterface> looks(
        as<css::sheet::XSpreadsheetDocument>(model())->getSheets()->getByName("Looks"),
        uno::UNO_QUERY);
    libreoffice::setProperty(looks, "TableLayout", css::text::WritingMode2::RL_TB);
    const TableLook table = tableOf("Looks", "A1:G7");
    EXPECT_EQ(described(table.at(0, 5)), described(usual.at(0, 0)));
    EXPECT_EQ(described(table.at(1, 4)), described(usual.at(1, 0))) << "merged";
    EXPECT_EQ(described(table.at(1, 5)), "covered");
    EXPECT_EQ(described(table.at(3, 2)),
              "lines left=0.7 dotted right=0.7 dashed top=0.7 0000FF bottom=1.8 double 00FF00");
    EXPECT_NEAR(table.columnWidthsPt.front(), usual.columnWidthsPt.back(), 0.1);
    EXPECT_NEAR(table.leftPt + table.widthPt(), 0, 0.1);
}

TEST_F(ExcelTables, DoWithWideTextsWhatASheetDoes) {
    const std::vector<std::string> expected = {
        "runs over to the right 2x1",
        "x",
        "runs over till it meets 2x1",
        "another",
        "is cut off her",
        "x",
        "to the left it runs right 2x1",
        "in the middle, centred centre 3x1",
        "########## right",
        "33.3333333 right",
        "1.2346E+11 right",
        "-1.2346E-05 right",
        "breaks into lines wraps",
        "shrinks to its cell 8.5pt",
        "横浜と神戸と東京と大 2x1",
        "ends…",
        "cut at a colo",
        "on over its colour fill=00FF00 2x1",
        "on over no colour fill=FFFFFF 2x1",
        "שלום (7) right",
        "سلام",
        "Ulm שלום",
        "٧ سلام",
        // Only in letters of whole pixels wider than its cell.
        "########## right",
        "2.5 right",
        "turne right turned=90",
        // All of what the table can't have askew, in smaller letters.
        "turned over 5.5pt turned=90",
        "lies a little askew 8.3pt",
        "x",
        "stands up in a high row right 7.1pt turned=270",
        "Tuesday, 9 December 2025 6pt turned=90",
        "Counterparty A 11pt turned=90",
        "runs over, though askew 2x1",
    };
    const TableLook table = tableOf("Wide", "A1:D16");
    std::vector<std::string> found;
    for (const CellLook& look : table.cells) {
        if (!look.isCovered && !look.text.empty()) found.push_back(described(look));
    }
    EXPECT_EQ(found, expected);
}

TEST_F(ExcelTables, ShowWhatACopyLeavesUnsaid) {
    const std::vector<std::string> expected = {
        "on dark ink=FFFFFF fill=64381F",
        "on light fill=00EEFF",
        "black fill=64381F",
        "darkened ink=FFFFFF fill=64381F",
        "by black fill=64381F",
        "below",
        "",
        "## right",
        "1 right fill=6B69F8",
        "2 right fill=77AAFB",
        "3 right fill=84EBFF",
        "4 bold right fill=7BBE63",
        "4 bold right fill=7BBE63",
        "",
        "",
        "",
        // A scale from the result of a formula on, and where another condition holds.
        "1 right fill=64381F",
        "2 right fill=32938F",
        "3 bold right",
        // A sheet without noughts.
        " right",
        "1 right",
        " right",
    };
    std::vector<std::string> found;
    const uno::Reference<css::sheet::XSpreadsheet> unsaid(
        as<css::sheet::XSpreadsheetDocument>(model())->getSheets()->getByName("Unsaid"),
        uno::UNO_QUERY_THROW);
    const auto standard = unsaid->getCellByPosition(5, 0);
    libreoffice::setProperty(standard, "VertJustify", css::table::CellVertJustify2::STANDARD);
    as<css::text::XTextRange>(standard)->setString("below");
    for (const char* address : {"A1:H2", "A3:C3"})
        for (const CellLook& look : tableOf("Unsaid", address).cells)
            found.push_back(described(look));
    libreoffice::setProperty(model()->getCurrentController(), "ShowZeroValues", false);
    for (const CellLook& look : tableOf("Zeros", "A1:C1").cells) found.push_back(described(look));
    EXPECT_EQ(found, expected);
}

TEST_F(ExcelTables, ShowConditionsThatACopyDoesNotWorkOut) {
    const auto looks = [&](const char* name, const char* address) {
        std::vector<std::string> found;
        for (const CellLook& look : tableOf(name, address).cells) {
            if (!look.isCovered) found.push_back(described(look));
        }
        return found;
    };
    const auto looksOfRow = [&] { return looks("Ruled", "C6:F6"); };
    std::vector<std::string> expected = {
        "Hof bold ink=0000C0",
        "5 bold right ink=0000C0",
        "begins hid",
        "Bonn fill=FFEEDD",
        "6 right fill=FFEEDD",
        "x fill=FFEEDD",
        "wide underlined struck centre fill=64381F 2x2",
        "",
        " fill=FFEEDD",
    };
    EXPECT_EQ(looks("Ruled", "C6:F9"), expected);
    EXPECT_EQ(looks("Ruled", "C11:G11"),
              (std::vector<std::string>{"across fill=FFEEDD", "begins hid", "after"}));
    EXPECT_EQ(looks("Secret", "A1"), std::vector<std::string>{"secret bold"}) << "a hidden sheet";
    expected.resize(3);
    std::uint64_t first = 0;
    first = callsOf([&] { EXPECT_EQ(looksOfRow(), expected); });
    EXPECT_LT(callsOf([&] { EXPECT_EQ(looksOfRow(), expected); }) + 20, first) << "read once";
    EXPECT_EQ(looks("Ruled", "C7"), std::vector<std::string>{"Bonn fill=FFEEDD"});
    sheet(book, "Ruled").get("Range", "H6").put("Value", 0);
    expected[0] = "Hof";
    expected[1] = "5 right";
    std::vector<std::string> selected;
    as<css::document::XDocumentEventBroadcaster>(model())->addDocumentEventListener(
        new SelectionAtCopy(selected));
    EXPECT_EQ(looksOfRow(), expected);
    EXPECT_EQ(selected, std::vector<std::string>{"$C$7"}) << "not yet the cells, which take keys";
    // LibreOffice would write all cells down to it.
    const auto factory = as<css::lang::XMultiServiceFactory>(model());
    const auto shape =
        as<css::drawing::XShape>(factory->createInstance("com.sun.star.drawing.RectangleShape"));
    const uno::Reference<css::sheet::XSpreadsheet> ruled(
        as<css::sheet::XSpreadsheetDocument>(model())->getSheets()->getByName("Ruled"),
        uno::UNO_QUERY_THROW);
    libreoffice::excel::drawPageOf(ruled)->add(shape);
    shape->setPosition({0, 300'000'000});
    sheet(book, "Ruled").get("Range", "H6").put("Value", 1);
    EXPECT_EQ(looks("Ruled", "C7"), std::vector<std::string>{"Bonn"}) << "as in a copy";
}

TEST(CellsAsHtml, HaveTheirNumbersInTheSuitesLanguage) {
    for (const char* mark : {".", ","}) {
        const std::string cell = fmt::format("<td sdval=\"-1{}25E-05\">x</td>", mark);
        const auto cells =
            libreoffice::excel::readCellsAsHtml("<table><tr>" + cell + "</tr></table>");
        EXPECT_EQ(cells.rows.at(0).cells.at(0).number, -1.25e-5);
    }
}

TEST_F(ExcelTables, RoundNumbersWhateverTheirLanguageCallsTheFormat) {
    const auto formats = as<css::util::XNumberFormatTypes>(
        as<css::util::XNumberFormatsSupplier>(model())->getNumberFormats());
    const uno::Reference<css::sheet::XSpreadsheet> wide(
        as<css::sheet::XSpreadsheetDocument>(model())->getSheets()->getByName("Wide"),
        uno::UNO_QUERY_THROW);
    libreoffice::setProperty(wide->getCellByPosition(1, 5), "NumberFormat",
                             formats->getStandardIndex(css::lang::Locale("de", "DE", "")));
    EXPECT_EQ(tableOf("Wide", "A6:D6").at(0, 1).text, "33,3333333");
    EXPECT_EQ(sheet(book, "Wide").get("Range", "B6").get("NumberFormat").toText(), "General");
}

TEST_F(ExcelTables, HaveTheBarsThatFormatsDraw) {
    std::vector<std::string> found;
    const TableLook table = tableOf("Bars", "A1:F3");
    EXPECT_EQ(table.at(0, 4).text, "2");
    EXPECT_EQ(table.at(0, 5).text, "2") << "for programs that draw no bars";
    EXPECT_TRUE(table.at(0, 5).bar.value().isAlone);
    for (const CellLook& look : table.cells) {
        found.push_back(look.bar
                            ? fmt::format("{:.3g}-{:.3g} {:06X}-{:06X}", look.bar->from,
                                          look.bar->to, look.bar->leftColour, look.bar->rightColour)
                            : "none");
    }
    const std::vector<std::string> expected = {
        "0.5-0.75 0000FF-0000FF",
        "0-0.5 0000FF-CCCCFF",
        "0-0.25 0000FF-0000FF",
        "0-0.667 0000FF-0000FF",
        "none",
        "0-0.633 00FF00-CCFFCC",
        "0.5-1 0000FF-0000FF",
        "0-1 0000FF-CCCCFF",
        "0-0.5 0000FF-0000FF",
        "0-1 0000FF-0000FF",
        "none",
        "0-0.9 00FF00-CCFFCC",
        "0-0.5 0000FF-0000FF",
        "0-0 0000FF-CCCCFF",
        "0-0 0000FF-0000FF",
        "0-0 0000FF-0000FF",
        "none",
        "0-0.1 0000FF-CCCCFF",
    };
    EXPECT_EQ(found, expected);
}

TEST_F(ExcelTables, HoldWholeCellsOfAnySheet) {
    const TableLook merged = tableOf("Looks", "B3:B3");
    EXPECT_EQ(described(merged.at(0, 0)).substr(0, 6), "merged");
    EXPECT_EQ(merged.cells.size(), 1U) << "no line is left in which no cell begins";
    EXPECT_EQ(tableOf("Secret", "A1:B2").at(0, 0).text, "secret");
    // Past the last column that anything was ever done to.
    EXPECT_NEAR(tableOf("Grid", "A1:M1").columnWidthsPt.back(),
                sheet(book, "Grid").get("Range", "M1").get("Width").toDouble(), 0.1);
    for (const auto& [name, address] : {std::pair("None", "A1:B2"), {"Grid", "A1:H2000"}})
        EXPECT_EQ(failureOf([&, each = std::pair(name, address)] {
                      static_cast<void>(tableOf(each.first, each.second));
                  }),
                  refused)
            << name;
}

TEST_F(ExcelTables, HoldPartsOfArrayFormulas) {
    const uno::Reference<css::sheet::XSpreadsheet> grid(
        as<css::sheet::XSpreadsheetDocument>(model())->getSheets()->getByName("Grid"),
        uno::UNO_QUERY);
    as<css::sheet::XArrayFormulaRange>(grid->getCellRangeByName("P2:Q9"))
        ->setArrayFormula("=A2:B9");
    as<css::util::XProtectable>(grid)->protect("");
    book.put("Saved", true);
    const TableLook part = tableOf("Grid", "O1:P4");
    EXPECT_EQ(part.at(3, 1).text, "3");
    EXPECT_EQ(part.columnWidthsPt.size() * part.rowHeightsPt.size(), 8U);
    EXPECT_TRUE(book.get("Saved").toBool());
    EXPECT_EQ(tableOf("Grid", "P2:Q9").cells.size(), 16U) << "all is shown again";
}

TEST_F(ExcelTables, WriteAWesternFontsOtherScriptsAsTheSheetDoes) {
    const TableLook scripts = tableOf("Scripts", "A1:A2");
    EXPECT_EQ(scripts.at(0, 0).fontName, "Calibri");
    EXPECT_FALSE(scripts.at(0, 0).asianFontName.empty());
    EXPECT_EQ(scripts.at(1, 0).fontName, "Yu Gothic");
    EXPECT_EQ(scripts.at(1, 0).asianFontName, "") << "a stand-in of the suite's";
}

TEST_F(ExcelTables, CostNoMoreCallsForMoreCells) {
    const auto callsFor = [&](const char* address) {
        return callsOf([&] { EXPECT_EQ(tableOf("Grid", address).cells.back().text.size(), 4U); });
    };
    static_cast<void>(callsFor("A1:B20"));
    const auto few = callsFor("A11:B20");
    EXPECT_LE(callsFor("A11:H60"), few + 5);
    EXPECT_LE(few, 60U);
}

}  // namespace

}  // namespace live
