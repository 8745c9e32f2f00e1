#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/text/WritingMode2.hpp>

#include "live/live_suite.h"
#include "office/libreoffice/excel/calc_document.h"

namespace live {

namespace {

using namespace libreoffice;
using Names = std::vector<std::string>;
constexpr std::int32_t disconnected = static_cast<std::int32_t>(0x80010108);

class ExcelSheets : public ExcelLive {
protected:
    /// The sheets as a user's hands reach them.
    [[nodiscard]] uno::Reference<css::sheet::XSpreadsheets> userSheets() const {
        return as<css::sheet::XSpreadsheetDocument>(model())->getSheets();
    }
    void userRenames(const char* from, const char* to) const {
        const uno::Reference<css::container::XNamed> tab(userSheets()->getByName(toUno(from)),
                                                         uno::UNO_QUERY_THROW);
        tab->setName(toUno(to));
    }
};

TEST_F(ExcelSheets, KeepsItsKnowledgeOfSheetsThatTheUserRenamesMovesAndDeletes) {
    const Object book = open("sheets.xlsx");
    const Object trend = sheet(book, "Trend");
    const Object buried = sheet(book, "Buried");
    EXPECT_EQ(namesIn(book.get("Charts")), Names{"Trend"}) << "and not what is alike";
    userRenames("Trend", "Direction");
    userSheets()->moveByName("Direction", 0);
    userSheets()->insertNewByName("Mine", 0);
    EXPECT_EQ(trend.get("Name").toText(), "Direction");
    EXPECT_EQ(trend.get("Index").toLong(), 2);
    EXPECT_EQ(namesIn(book.get("Charts")), Names{"Direction"});
    EXPECT_EQ(sheet(book, "Mine").typeName(), "Worksheet");

    // LibreOffice's reference to a deleted sheet goes over to the next one, which must not become
    // what that was.
    userSheets()->removeByName("Direction");
    userSheets()->removeByName("Hidden");
    EXPECT_EQ(namesIn(book.get("Charts")), Names{});
    EXPECT_EQ(sheet(book, "Data").typeName(), "Worksheet");
    EXPECT_EQ(sheet(book, "Buried").get("Visible").toLong(), 2);
    EXPECT_EQ(buried.get("Visible").toLong(), 2);
    EXPECT_EQ(failureOf([&] { trend.put("Name", "Never"); }), disconnected);
    EXPECT_EQ(namesIn(book.get("Sheets")), (Names{"Mine", "Data", "Alike", "Buried"}));
}

TEST_F(ExcelSheets, AsksAgainAfterItsOwnChangesAloneWhereNobodyElseMakesAny) {
    desk->isUndisturbed = true;
    const Object book = open("sheets.xlsx");
    const Object data = sheet(book, "Data");
    const auto named = [&] {
        const Value cells = book.get("Names").get("Item", "Moves").get("RefersToRange");
        return cells.get("Worksheet").get("Name").toText() + cells.get("Address").toText();
    };
    EXPECT_NE(failureOf(named), 0) << "no such name yet";
    for (const char* cell : {"$A$1", "$B$2"}) {
        book.get("Names").call("Add", "Moves", std::string("=Data!") + cell);
        EXPECT_EQ(named(), std::string("Data") + cell);
    }
    data.put("Name", "Numbers");
    EXPECT_EQ(named(), "Numbers$B$2");
    userRenames("Numbers", "Theirs");
    EXPECT_EQ(callsOf([&] { EXPECT_EQ(data.get("Name").toText(), "Numbers"); }), 0);

    const Object hidden = sheet(book, "Hidden");
    for (const std::int32_t shown : {-1, 0}) {
        hidden.put("Visible", shown);
        EXPECT_EQ(hidden.get("Visible").toLong(), shown);
    }
    const Object charts = sheet(book, "Alike").call("ChartObjects").toObject();
    charts.call("Item", 1).call("Delete");
    EXPECT_EQ(charts.get("Count").toLong(), 0);
    hidden.call("Delete");
    EXPECT_EQ(namesIn(book.get("Worksheets")), (Names{"Theirs", "Alike", "Buried"}));
}

TEST_F(ExcelSheets, SaysSoWhenLibreOfficeKeepsTheLastSheetVisible) {
    const Object book = open("lost.xlsx");
    book.get("Charts").get("Item", 1).put("Visible", false);
    const Object last = sheet(book, "Data");
    EXPECT_EQ(failureOf([&] { last.put("Visible", false); }), refused);
    EXPECT_EQ(last.get("Visible").toLong(), -1);
    EXPECT_EQ(failureOf([&] { last.call("Delete"); }), refused);
}

TEST_F(ExcelSheets, TellsTheChartSheetsOfAnEncryptedFileByTheirLooks) {
    Object book = open("sheets.xlsx");
    const std::string secret = savedAs("secret.xlsx", "Calc MS Excel 2007 XML", "pass");
    const Value books = app.get("Workbooks");
    for (const char* wrong : {"", "no"}) {
        EXPECT_EQ(failureOf([&] { books.call("Open", secret, arg("Password", wrong)); }), refused);
        EXPECT_NE(lastWords.find("password"), std::string::npos) << lastWords;
    }
    book = books.call("Open", secret, arg("Password", "pass")).toObject();
    EXPECT_EQ(namesIn(book.get("Charts")), (Names{"Trend", "Alike"}));
    EXPECT_EQ(namesIn(book.get("Worksheets")), (Names{"Data", "Hidden", "Buried"}));
}

TEST_F(ExcelSheets, KnowsAWorkbookThatIsSavedUnderAnotherName) {
    const Object book = open("sheets.xlsx");
    const std::string before = book.get("Identity").toText();
    as<css::frame::XStorable>(model())->storeAsURL(toUno("file://" + file("other.ods")), {});
    EXPECT_EQ(book.get("Name").toText(), "other.ods");
    EXPECT_EQ(book.get("Identity").toText(), before);
    EXPECT_NE(open("lost.xlsx").get("Identity").toText(), before);
}

TEST_F(ExcelSheets, LeavesWhatTheUserCanUndoAndRedoAsItIs) {
    const Object book = open("sheets.xlsx");
    const auto steps = as<css::document::XUndoManagerSupplier>(model())->getUndoManager();
    userRenames("Data", "Figures");
    userRenames("Alike", "Unlike");
    steps->undo();
    const auto toUndoAndRedo = [&] {
        return std::pair(steps->getAllUndoActionTitles().getLength(),
                         steps->getAllRedoActionTitles().getLength());
    };
    ASSERT_EQ(toUndoAndRedo(), std::pair(1, 1));
    const Value sheets = book.get("Sheets");
    const Object added = book.get("Worksheets")
                             .call("Add", arg("After", sheets.get("Item", sheets.get("Count"))))
                             .toObject();
    added.put("Name", "Ours");
    book.get("Names").call("Add", arg("Name", "OurCells"), arg("RefersToR1C1", "=Ours!C1:C8"));
    const Object cells = added.get("Range", "OurCells").toObject();
    cells.put("NumberFormat", "@");
    added.get("Range", "A1:B1").put("Value", true);
    added.put("Visible", 2);
    added.get("Cells").call("ClearContents");
    EXPECT_EQ(toUndoAndRedo(), std::pair(1, 1));
    steps->redo();
    steps->undo();
    steps->undo();
    EXPECT_EQ(namesIn(book.get("Sheets")),
              (Names{"Data", "Trend", "Alike", "Hidden", "Buried", "Ours"}));
    added.call("Delete");
    EXPECT_EQ(toUndoAndRedo(), std::pair(0, 2));
}

TEST_F(ExcelSheets, OpensNothingButWorkbooksAndSaysWhy) {
    const Value books = app.get("Workbooks");
    const Object book = open("sheets.xlsx");
    const auto before = openDocuments();
    const std::string text = file("deck.fodp");
    const auto presentation = connection()->desktop()->loadComponentFromURL(
        "private:factory/simpress", "_blank", 0, propertyValues({{"Hidden", uno::Any(true)}}));
    as<css::frame::XStorable>(presentation)
        ->storeAsURL(
            fileUrl(text),
            propertyValues(
                {{"FilterName", uno::Any(rtl::OUString("OpenDocument Presentation Flat XML"))}}));

    EXPECT_EQ(failureOf([&] { books.call("Open", text); }), refused);
    EXPECT_NE(lastWords.find("no workbook"), std::string::npos) << lastWords;
    EXPECT_EQ(openDocuments().size(), before.size() + 1) << "what was open already stays open";
    as<css::lang::XComponent>(presentation)->dispose();
    EXPECT_EQ(failureOf([&] { books.call("Open", text); }), refused);
    EXPECT_EQ(failureOf([&] { books.call("Open", file("nowhere.xlsx")); }), refused);
    EXPECT_NE(lastWords.find("no such file"), std::string::npos) << lastWords;
    EXPECT_EQ(openDocuments(), before);
    EXPECT_EQ(books.call("Open", file("sheets.xlsx")).get("Name").toText(), "sheets.xlsx");
    EXPECT_EQ(openDocuments(), before);
}

TEST_F(ExcelSheets, ClosesNoChangedWorkbookWithoutBeingToldWhetherToSave) {
    const Object book = open("sheets.xlsx");
    sheet(book, "Data").get("Range", "A1").put("Value", "changed");
    EXPECT_EQ(failureOf([&] { book.call("Close"); }), refused);
    EXPECT_FALSE(book.get("Saved").toBool());
    book.call("Close", false);
    EXPECT_EQ(failureOf([&] { book.get("Name"); }), disconnected);
}

TEST_F(ExcelSheets, FindsTheCellsUnderAChartWhereLinesAreHiddenOrOfManySizes) {
    const Object book = open("tables.xlsx");
    const Object looks = sheet(book, "Looks");
    const uno::Reference<css::table::XColumnRowRange> lines(userSheets()->getByName("Looks"),
                                                            uno::UNO_QUERY_THROW);
    for (sal_Int32 row = 10; row < 40; ++row)
        setProperty(lines->getRows()->getByIndex(row).get<uno::Reference<uno::XInterface>>(),
                    "Height", row % 3 == 0 ? 5000 : 100 + row);
    const auto expectFound = [&](const char* address) {
        const auto cell = excel::model::blockOf(address).value();
        const auto box =
            desk->active<excel::CalcDocument>()->findSheet("Looks")->cells(cell)->place();
        const Object chart = looks.get("ChartObjects")
                                 .call("Add", box.left, box.top, box.width - 1, box.height - 1)
                                 .toObject();
        const std::string found = excel::model::addressOf(cell);
        EXPECT_EQ(chart.get("TopLeftCell").get("Address").toText(), found);
        EXPECT_EQ(chart.get("BottomRightCell").get("Address").toText(), found);
    };
    for (const char* address :
         {"A1", "D3", "D5", "G12", "A20", "F41", "ZZ900", "XFD1048576", "B2", "F50"})
        expectFound(address);
    lines->getRows()->insertByIndex(20, 3);
    for (const char* address : {"F50", "B2", "A24"}) expectFound(address);
    setProperty(lines, "TableLayout", css::text::WritingMode2::RL_TB);
    for (const char* address : {"A1", "D3", "G12", "A20", "ZZ900", "XFD1048576"})
        expectFound(address);
}

TEST_F(ExcelSheets, KeepsTheNameByWhichAChartWasListedWhenItsNamesakeGoes) {
    const Object book = open("charts.xlsx");
    const auto shapes = excel::drawPageOf(uno::Reference<css::sheet::XSpreadsheet>(
        userSheets()->getByName("Data"), uno::UNO_QUERY_THROW));
    const auto shape = [&](sal_Int32 place) {
        return shapes->getByIndex(place).get<uno::Reference<css::drawing::XShape>>();
    };
    for (const sal_Int32 place : {0, 1}) as<css::container::XNamed>(shape(place))->setName("Twin");
    const Object charts = sheet(book, "Data").get("ChartObjects").toObject();
    EXPECT_EQ(namesIn(charts), (Names{"Twin", "Twin (2)", "Veiled", "Dark"}));
    shapes->remove(shape(0));
    EXPECT_EQ(namesIn(charts), (Names{"Twin (2)", "Veiled", "Dark"}));
    EXPECT_NE(failureOf([&] { charts.get("Item", "Twin"); }), 0);
}

TEST_F(ExcelSheets, CostsNoMoreCallsToLookUpASheetWhenThereAreMany) {
    const Object book = open("sheets.xlsx");
    const Value sheets = book.get("Sheets");
    static_cast<void>(sheets.get("Item", "Data"));
    const auto few = callsOf([&] { static_cast<void>(sheets.get("Item", "Data")); });
    for (int i = 0; i < 60; ++i) sheets.call("Add");
    static_cast<void>(sheets.get("Item", 60));
    EXPECT_EQ(callsOf([&] { static_cast<void>(sheets.get("Item", "Data")); }), few);
    EXPECT_LE(callsOf([&] { static_cast<void>(sheets.get("Item", 60)); }), 2U);
}

}  // namespace

}  // namespace live
