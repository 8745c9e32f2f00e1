#include <com/sun/star/awt/Gradient2.hpp>
#include <com/sun/star/chart2/XChartDocument.hpp>
#include <com/sun/star/chart2/data/XDataReceiver.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/drawing/XDrawPage.hpp>
#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XTable.hpp>
#include <com/sun/star/table/XTableChartsSupplier.hpp>
#include <com/sun/star/text/XText.hpp>

#include <algorithm>
#include <cmath>
#include <fstream>

#include "live/live_suite.h"
#include "office/failure.h"
#include "office/libreoffice/excel/application.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/package/package.h"
#include "support/copied_double.h"

namespace live {

namespace {

using namespace libreoffice;

/// A workbook with sheets that draw on each other, and a presentation.
class PasteLive : public PowerPointLive {
protected:
    PasteLive() {
        excelApp = excel::applicationObject(desk);
        book = excelApp.get("Workbooks")
                   .call("Open", copyOf(MURVANE_TEST_BOOKS, "sheets.xlsx"))
                   .toObject();
        deck = openWithSlides();
    }
    void TearDown() override {
        PowerPointLive::TearDown();
        for (const auto& each : desk->open<excel::CalcDocument>()) each->close();
    }

    /// The presentation as it comes back from a file.
    Object savedAs(const char* name, const char* filter) {
        const auto model = desk->active<powerpoint::ImpressDeck>()->model();
        as<css::frame::XStorable>(model)->storeToURL(
            fileUrl(file(name)), propertyValues({{"FilterName", uno::Any(toUno(filter))}}));
        return openFile(file(name));
    }

    /// A shape of the active presentation's third slide, from the end.
    [[nodiscard]] uno::Reference<css::drawing::XShape> lastShape(std::int32_t fromEnd = 0) {
        const uno::Reference<css::drawing::XDrawPage> page(
            as<css::drawing::XDrawPagesSupplier>(desk->active<powerpoint::ImpressDeck>()->model())
                ->getDrawPages()
                ->getByIndex(2),
            uno::UNO_QUERY_THROW);
        return kept(uno::Reference<css::drawing::XShape>(
            page->getByIndex(page->getCount() - 1 - fromEnd), uno::UNO_QUERY_THROW));
    }

    /// Holds an object until the presentation is closed: LibreOffice crashes on a presentation that
    /// is closed just when a table of it is let go.
    template <class Reference>
    [[nodiscard]] Reference kept(const Reference& object) {
        kept_.push_back(object);
        return object;
    }

    [[nodiscard]] Value sheet(const char* name) const {
        return book.get("Sheets").get("Item", name);
    }

    Object excelApp;
    Object book;
    Object deck;

private:
    std::vector<uno::Reference<uno::XInterface>> kept_;
};

office::TableLook smallTable() {
    office::TableLook table{{90, 100, 50}, {20, 30}, std::vector<office::CellLook>(6)};
    table.cells[0].text = "  Year & <half>\nof it";
    table.cells[0].fontSizePt = 10;
    table.cells[0].fill = 0x336699;
    table.cells[1].text = "over two";
    table.cells[1].columns = 2;
    table.cells[2].isCovered = true;
    table.cells[3].text = "12.5%";
    table.cells[3].rotation = 90;
    table.cells[4].text = "two";
    table.cells[4].bar = office::CellBar{0, 0.25, 0x0000FF, 0x0000FF};
    table.cells[5].text = "last";
    return table;
}

TEST_F(PasteLive, MakesTablesThatComeBackFromFiles) {
    const office::TableLook look = smallTable();
    const auto place = desk->active<powerpoint::ImpressDeck>()->slideAt(3);
    static_cast<void>(place->paste(support::CopiedDouble(look), office::PasteAs::Default));
    const auto wide = [&] {
        office::TableLook larger = look;
        for (double& width : larger.columnWidthsPt) width *= 10;
        return larger;
    }();
    const auto scaled = place->paste(support::CopiedDouble(wide), office::PasteAs::Default);
    EXPECT_NEAR(scaled->size().width, 960 * 0.94, 1);
    for (const auto& [name, filter] :
         {std::pair("saved.pptx", "Impress MS PowerPoint 2007 XML"), {"saved.odp", "impress8"}}) {
        SCOPED_TRACE(name);
        const Object again = savedAs(name, filter);
        const auto table =
            kept(property<uno::Reference<css::table::XTable>>(lastShape(1), "Model"));
        ASSERT_TRUE(table.is());
        const auto cell = [&](sal_Int32 column, sal_Int32 row) {
            return kept(table->getCellByPosition(column, row));
        };
        const auto text = [&](sal_Int32 column, sal_Int32 row) {
            return fromUno(as<css::text::XTextRange>(cell(column, row))->getString());
        };
        ASSERT_EQ(table->getColumnCount(), 3);
        EXPECT_EQ(text(0, 0), "  Year & <half>\nof it");
        EXPECT_EQ(text(1, 0), "over two");
        EXPECT_EQ(text(1, 1), "two");
        EXPECT_EQ(text(2, 1), "last");
        EXPECT_EQ(property<sal_Int32>(cell(0, 0), "FillColor"), 0x996633);
        EXPECT_EQ(property<float>(kept(as<css::text::XText>(cell(0, 0))->createTextCursor()),
                                  "CharHeight"),
                  10);
        EXPECT_EQ(property<sal_Int32>(cell(0, 1), "RotateAngle"), 9000);
        const auto stops = property<css::awt::Gradient2>(cell(1, 1), "FillGradient").ColorStops;
        EXPECT_EQ(std::count_if(
                      stops.begin(), stops.end(),
                      [](const auto& stop) { return std::abs(stop.StopOffset - 0.25) < 0.001; }),
                  2)
            << "where the bar ends";
        EXPECT_NEAR(lastShape(1)->getSize().Width, 8467, 2) << "240 points";
        again.call("Close");
    }
}

TEST_F(PasteLive, MakesATableInTheSizeOfItsRoom) {
    const auto place = desk->active<powerpoint::ImpressDeck>()->slideAt(3);
    for (const auto& [room, scale] :
         {std::pair(office::RoomForTable{480, 400}, 2.0), {{480, 25}, 0.5}}) {
        desk->clipboard().room = room;
        const auto shape =
            place->paste(support::CopiedDouble(smallTable()), office::PasteAs::Default);
        EXPECT_NEAR(shape->size().width, 240 * scale, 1);
        const auto table = kept(property<uno::Reference<css::table::XTable>>(lastShape(), "Model"));
        const auto text = kept(as<css::text::XText>(table->getCellByPosition(0, 0)));
        EXPECT_NEAR(property<float>(kept(text->createTextCursor()), "CharHeight"), 10 * scale, 0.1);
    }
    const office::TableLook empty{{90, 90}, {14, 14}, std::vector<office::CellLook>(4)};
    desk->clipboard().room = office::RoomForTable{480, 28};
    const auto shape = place->paste(support::CopiedDouble(empty), office::PasteAs::Default);
    EXPECT_NEAR(shape->size().height, 28, 0.5) << "empty cells don't grow";
}

TEST_F(PasteLive, MakesChartsAndWorkbooksThatHoldTheirData) {
    const Value shapes = slide(deck, 3).get("Shapes");
    for (const std::int32_t form : {0, 10}) {
        sheet("Trend").get("ChartArea").call("Copy");
        shapes.call("PasteSpecial", form);
    }
    for (const auto& [name, filter] :
         {std::pair("saved.pptx", "Impress MS PowerPoint 2007 XML"), {"saved.odp", "impress8"}}) {
        SCOPED_TRACE(name);
        const Object again = savedAs(name, filter);
        const auto native =
            property<uno::Reference<css::chart2::XChartDocument>>(lastShape(1), "Model");
        ASSERT_TRUE(native.is());
        EXPECT_TRUE(native->hasInternalDataProvider());
        const auto values = as<css::chart2::data::XDataReceiver>(native)->getUsedData();
        const auto series = values->getDataSequences()[1]->getValues()->getData();
        EXPECT_EQ(series[7], uno::Any(84.0));
        again.call("Close");
    }
    const auto package = office::package::Package::open(file("saved.pptx"));
    std::ofstream(file("embedded.xlsx"), std::ios::binary)
        << package.read("/ppt/embeddings/oleObject1.xlsx");
    const Value opened = excelApp.get("Workbooks").call("Open", file("embedded.xlsx"));
    EXPECT_EQ(namesIn(opened.get("Sheets")), (std::vector<std::string>{"Trend", "Data"}));
    const Value sheets = opened.get("Sheets");
    EXPECT_EQ(sheets.get("Item", "Data").get("Visible").toLong(), 0);
    const Value charts = sheets.get("Item", "Trend").get("ChartObjects");
    EXPECT_EQ(charts.get("Count").toLong(), 1);
}

/// The middle one of three series stands in a hidden row.
TEST_F(PasteLive, GivesEachSeriesOfAChartItsOwnValues) {
    const Value charts = excelApp.get("Workbooks")
                             .call("Open", copyOf(MURVANE_TEST_BOOKS, "hidden_series.xlsx"))
                             .get("Sheets")
                             .get("Item", "Data");
    for (const std::int32_t place : {1, 2}) {
        charts.call("ChartObjects", place).get("Chart").get("ChartArea").call("Copy");
        slide(deck, 3).get("Shapes").call("PasteSpecial", 0);
        const auto native =
            property<uno::Reference<css::chart2::XChartDocument>>(lastShape(), "Model");
        const auto used = as<css::chart2::data::XDataReceiver>(native)->getUsedData();
        std::vector<double> firsts;
        for (const auto& sequence : used->getDataSequences()) {
            const auto values = sequence->getValues()->getData();
            double first = 0;
            // Places along the other axis are small.
            if (values.hasElements() && (values[0] >>= first) && !(first < 100))
                firsts.push_back(first);
        }
        EXPECT_EQ(firsts, (std::vector<double>{100, 300})) << place;
    }
}

TEST_F(PasteLive, KnowsWhenAPresentationHoldsSeveralWorkbooks) {
    const auto holds = [&](std::int32_t count) {
        return desk->active<powerpoint::ImpressDeck>()->holdsWorkbooks(count);
    };
    const Value shapes = slide(deck, 3).get("Shapes");
    const std::uint64_t calls = callsOf([&] { EXPECT_FALSE(holds(1)); });
    EXPECT_LE(calls, 4U) << "no shape has to be asked";
    for (const std::int32_t form : {0, 10}) {
        sheet("Trend").get("ChartArea").call("Copy");
        shapes.call("PasteSpecial", form);
    }
    EXPECT_TRUE(holds(1));
    EXPECT_FALSE(holds(2)) << "a chart is none";
    sheet("Data").get("Range", "A1:B3").call("Copy");
    shapes.call("PasteSpecial", arg("Link", true));
    EXPECT_FALSE(holds(2)) << "a link is none";
    shapes.call("PasteSpecial", 10);
    EXPECT_TRUE(holds(2));
    savedAs("saved.pptx", "Impress MS PowerPoint 2007 XML");
    EXPECT_TRUE(holds(2)) << "those that come with a file count too";
}

TEST_F(PasteLive, EmbedsSheetsThatAreCalledAsThoseOfANewWorkbook) {
    for (const char* name : {"Murvane", "Sheet1"}) {
        book.get("Sheets").get("Item", 1).put("Name", name);
        sheet("Trend").get("ChartArea").call("Copy");
        slide(deck, 3).get("Shapes").call("PasteSpecial", 10);
        const auto embedded =
            property<uno::Reference<css::sheet::XSpreadsheetDocument>>(lastShape(), "Model");
        const uno::Reference<css::table::XCellRange> data(
            embedded->getSheets()->getByName(toUno(name)), uno::UNO_QUERY_THROW);
        EXPECT_EQ(data->getCellByPosition(1, 8)->getValue(), 84) << name;
    }
}

TEST_F(PasteLive, EmbedsTheChartOfAChartSheetThatLibreOfficeLoses) {
    const Object lost =
        excelApp.get("Workbooks").call("Open", copyOf(MURVANE_TEST_BOOKS, "lost.xlsx")).toObject();
    lost.get("Charts").get("Item", "Gone").get("ChartArea").call("Copy");
    slide(deck, 3).get("Shapes").call("PasteSpecial", 10);
    const auto embedded =
        property<uno::Reference<css::sheet::XSpreadsheetDocument>>(lastShape(), "Model");
    const uno::Reference<css::table::XTableChartsSupplier> sheet(
        embedded->getSheets()->getByName("Gone"), uno::UNO_QUERY_THROW);
    EXPECT_EQ(sheet->getCharts()->getElementNames().getLength(), 1);
    desk->clipboard().copied.reset();
}

TEST_F(PasteLive, MakesValuesOfFormulasThatLeadToOtherSheets) {
    const auto source = desk->active<excel::CalcDocument>()->model();
    const auto names = property<uno::Reference<css::sheet::XNamedRanges>>(source, "NamedRanges");
    names->addNewByName("Away", "$Data.$B$2:$B$4", {}, 0);
    names->addNewByName("FarAway", "SUM(Away)", {}, 0);
    const auto sheets = as<css::sheet::XSpreadsheetDocument>(source)->getSheets();
    sheets->insertNewByName("Own", 0);
    const uno::Reference<css::table::XCellRange> own(sheets->getByName("Own"),
                                                     uno::UNO_QUERY_THROW);
    names->addNewByName("Near", "$Own.$A$1", {}, 0);
    const char* const formulas[] = {"=7", "=SUM(Away)", "=FarAway", "=Near*2", "=$Data.B2*2"};
    for (sal_Int32 row = 0; row < 5; ++row)
        own->getCellByPosition(0, row)->setFormula(rtl::OUString::createFromAscii(formulas[row]));
    const auto array = [&](sal_Int32 first, const char* formula) {
        as<css::sheet::XArrayFormulaRange>(own->getCellRangeByPosition(0, first, 0, first + 1))
            ->setArrayFormula(rtl::OUString::createFromAscii(formula));
    };
    array(5, "=$Data.B2:B3*3");
    array(7, "=A1:A2*3");
    sheet("Own").get("Range", "A1:A9").call("Copy");
    slide(deck, 3).get("Shapes").call("PasteSpecial", 10);
    const auto embedded =
        property<uno::Reference<css::sheet::XSpreadsheetDocument>>(lastShape(), "Model");
    const uno::Reference<css::table::XCellRange> copy(embedded->getSheets()->getByName("Own"),
                                                      uno::UNO_QUERY_THROW);
    for (sal_Int32 row = 0; row < 9; ++row) {
        const auto cell = copy->getCellByPosition(0, row);
        const std::string formula = fromUno(cell->getFormula());
        EXPECT_EQ(cell->getValue(), own->getCellByPosition(0, row)->getValue()) << row;
        const bool isKept = row == 3 || row > 6;
        EXPECT_EQ(formula.find('=') != formula.npos, isKept || row == 0) << formula;
    }
}

TEST_F(PasteLive, BindsALinkToTheFileAndNeedsOne) {
    const Value shapes = slide(deck, 3).get("Shapes");
    sheet("Data").get("Range", "A1:B3").call("Copy");
    shapes.call("PasteSpecial", arg("Link", true));
    EXPECT_EQ(property<rtl::OUString>(lastShape(), "LinkURL"), fileUrl(file("sheets.xlsx")));
    expectSaved(deck, 3, {"<p:link"});
    const auto opened = as<css::sheet::XSpreadsheetDocument>(
        property<uno::Reference<css::frame::XModel>>(lastShape(), "Model"));
    EXPECT_TRUE(opened->getSheets()->hasByName("Data"));
    desk->record<excel::CalcDocument>(desk->load("private:factory/scalc", true))->markActive();
    excelApp.get("ActiveSheet").get("Range", "A1:B3").call("Copy");
    const std::int32_t before = shapes.get("Count").toLong();
    EXPECT_EQ(failureOf([&] { shapes.call("PasteSpecial", arg("Link", true)); }), 1004);
    EXPECT_EQ(shapes.get("Count").toLong(), before);
}

TEST_F(PasteLive, LeavesTheUsersOwnStepAsTheOneToUndo) {
    const auto steps =
        as<css::document::XUndoManagerSupplier>(desk->active<powerpoint::ImpressDeck>()->model())
            ->getUndoManager();
    const Value shapes = slide(deck, 3).get("Shapes");
    const auto stepsAfterAll = [&] {
        for (const bool isChart : {true, false}) {
            const Value source =
                isChart ? sheet("Trend").get("ChartArea") : sheet("Data").get("Range", "A1:B3");
            source.call("Copy");
            for (const std::int32_t form : {0, 2, 10}) shapes.call("PasteSpecial", form);
            shapes.call("PasteSpecial", arg("Link", true));
        }
        shapes.call("AddLabel", 1, 0, 0, 100, 20);
        shapes.call("Item", shapes.get("Count")).put("AlternativeText", "A label");
        return steps->getAllUndoActionTitles().getLength();
    };
    steps->clear();
    EXPECT_EQ(stepsAfterAll(), 0);
    const Value label = shapes.call("Item", shapes.get("Count"));
    const std::string before = label.get("Name").toText();
    setProperty(lastShape(), "Name", rtl::OUString("the user's"));
    EXPECT_EQ(stepsAfterAll(), 1);
    steps->undo();
    EXPECT_EQ(label.get("Name").toText(), before);
}

}  // namespace

}  // namespace live
