#include "export_stage.h"
#include "office/package/small_workbook.h"
#include "powerpoint/formats.h"

namespace {

using catalogue::ExportFormat;
using stage::chartRow;
using stage::chartSheetRow;
using stage::rangeRow;
using Texts = std::vector<std::string>;

/// A workbook whose file isn't there: nothing of it can be embedded or linked.
class FormatsTest : public stage::ExportStage {
protected:
    FormatsTest() {
        book.sheet("Sales").chart("Chart 1").value("A1", 7.0);
        book.chartSheet("Overview");
        book.define("Total", "=Sales!$A$1:$C$4");
        deck.addSlides(1);
    }

    void exportAs(ExportFormat format) {
        choices.format = format;
        notices.shown.clear();
        exportRows();
    }

    [[nodiscard]] std::int32_t excelWindow() const {
        return session.ExcelApp.get("WindowState").toLong();
    }
};

TEST_F(FormatsTest, WithoutItemsAPastingFormatTouchesNothing) {
    add(chartRow("Chart 1", "Sales"));
    list.rows.back().checked = false;
    session.ExcelApp.put("WindowState", -4140);
    for (const auto format :
         {ExportFormat::Editable, ExportFormat::Embedded, ExportFormat::Linked}) {
        exportAs(format);
        EXPECT_EQ(done, 0);
        EXPECT_EQ(excelWindow(), -4140);
        EXPECT_EQ(notices.messages(), Texts{});
        EXPECT_EQ(suite.clipboardClears(), 0);
    }
}

TEST_F(FormatsTest, WhatCannotBeCopiedIsToldByItsKindAndTheBatchGoesOn) {
    add(chartSheetRow("Overview"));
    add(chartRow("Chart 9", "Sales"));
    add(rangeRow("Nowhere", "Sales"));
    add(rangeRow("Total", "Sales"));
    suite.failures().failAlways("ChartArea.Copy");
    suite.failures().failAlways("Range.Copy");
    for (const auto format : {ExportFormat::Embedded, ExportFormat::Linked}) {
        exportAs(format);
        Texts expected = {"Could not paste 'Overview': ChartArea.Copy fails, as planned.",
                          "Chart 'Chart 9' was not found on sheet 'Sales'.",
                          "Named range 'Nowhere' not found.",
                          "Could not paste 'Total': Range.Copy fails, as planned."};
        if (format == ExportFormat::Embedded)
            expected.emplace_back(
                "No objects could be pasted as embedded Excel objects.\r\n\r\nCheck that the "
                "selected sheets are visible and that PowerPoint can accept Excel objects from the "
                "clipboard.");
        EXPECT_EQ(notices.messages(), expected);
        EXPECT_EQ(done, 4);
        EXPECT_EQ(suite.log().texts("PasteSpecial"), Texts{});
        EXPECT_EQ(progress.calls.back(), "unload");
        EXPECT_EQ(*(progress.calls.end() - 2), "item 4 of 4");
    }
}

TEST_F(FormatsTest, APasteIsAskedForInEveryWayBeforeItCountsAsFailed) {
    struct Case {
        ExportFormat format;
        Texts attempts;
        Texts notices;
        std::int32_t excelWindow;
    };
    add(chartSheetRow("Overview"));
    add(chartRow("Chart 1", "Sales"));
    add(rangeRow("Total", "Sales"));
    suite.failures().failAlways("PasteSpecial");
    for (const Case& it :
         {Case{ExportFormat::Embedded,
               {"Shapes.PasteSpecial(DataType:=10, Link:=False)", "Shapes.PasteSpecial(10)",
                "View.PasteSpecial(DataType:=10, DisplayAsIcon:=False, Link:=False)"},
               {"Could not paste chart sheet 'Overview' as an embedded Excel object.",
                "Could not paste embedded chart 'Chart 1' to PowerPoint.",
                "Could not paste 'Total' as an embedded Excel object."},
               -4137},
          Case{ExportFormat::Linked,
               {"Shapes.PasteSpecial(Link:=True)", "View.PasteSpecial(Link:=True)"},
               {"Could not paste chart sheet 'Overview' as a linked object.",
                "Could not paste embedded chart 'Chart 1' as a linked object.",
                "Could not paste 'Total' as a linked object."},
               -4143}}) {
        exportAs(it.format);
        Texts attempts;
        for (int item = 0; item < 3; ++item)
            attempts.insert(attempts.end(), it.attempts.begin(), it.attempts.end());
        EXPECT_EQ(suite.log().texts("PasteSpecial"), attempts);
        Texts told = notices.messages();
        told.resize(3);
        EXPECT_EQ(told, it.notices);
        EXPECT_EQ(excelWindow(), it.excelWindow);
    }
}

TEST_F(FormatsTest, CellsThatMakeNoTableAreToldAndTheBatchGoesOn) {
    add(rangeRow("Total", "Sales"));
    add(rangeRow("Total", "Sales", "Second"));
    suite.failures().fail("PasteSpecial");
    exportAs(ExportFormat::Editable);
    ASSERT_EQ(notices.shown.size(), 1U);
    EXPECT_TRUE(notices.messages().front().starts_with("Could not paste 'Total' as a table: "));
    EXPECT_EQ(picturesOn(2), Texts{});
    EXPECT_EQ(picturesOn(3), Texts{"Second"});
}

TEST_F(FormatsTest, ATableIsPastedWithTheRoomKnownThatItIsPlacedIn) {
    add(rangeRow("Total", "Sales"));
    add(chartRow("Chart 1", "Sales"));
    storePlacement(0.5, 0.4, 0.8);
    options.placesShapes = true;
    std::vector<std::optional<office::RoomForTable>> rooms;
    suite.log().clear();
    host.onEvents = [&] {
        if (suite.log().count("PasteSpecial") > rooms.size())
            rooms.push_back(suite.clipboard()->room);
    };
    exportAs(ExportFormat::Editable);
    ASSERT_EQ(rooms.size(), 2U);
    ASSERT_TRUE(rooms.front());
    EXPECT_NEAR(rooms.front()->widthPt, 960 * 0.2, 1e-6) << "up to the right edge";
    EXPECT_NEAR(rooms.front()->heightPt, 540 * 0.45, 1e-6);
    EXPECT_FALSE(rooms.back()) << "a chart keeps the size of its text";
    EXPECT_FALSE(suite.clipboard()->room);
}

TEST_F(FormatsTest, AnEditableChartThatIsGoneFailsAndASheetStandsForItsFirstChart) {
    add(chartSheetRow("Sales"));
    book.sheet("Empty");
    add(chartRow(session::chartSheetText, "Empty", "", "", catalogue::ItemKind::ChartSheet));
    choices.format = ExportFormat::Editable;
    powerpoint::InsertOneItem(session, list.rows.front(), choices);
    EXPECT_EQ(suite.log().texts("PasteSpecial"), Texts{"Shapes.PasteSpecial(0)"});
    EXPECT_FALSE(powerpoint::InsertOneItem(session, list.rows.back(), choices));
    EXPECT_EQ(notices.messages().back(), "No chart found in sheet: Empty");
    list.rows = {chartRow("Chart 9", "Sales")};
    EXPECT_THROW(exportRows(), office::Failure);
}

/// A workbook with a file, of which everything can be pasted.
class FileFormatsTest : public FormatsTest {
protected:
    FileFormatsTest() {
        folder.write("Small.xlsx", small_workbook::bytes());
        auto& small = suite.excel().addWorkbook("Small.xlsx", folder.path().string());
        small.sheet("Data").chart("Sales").value("A1", 7.0).define("Area", "A1:C4");
        small.chartSheet("Plot");
        session.ActiveBook = small.handle();
        add(rangeRow("Area", "Data", "A caption"));
        add(chartRow("Sales", "Data"));
    }

    support::TemporaryFolder folder;
};

TEST_F(FileFormatsTest, WhatTheSuiteSaysOfOneMoreWorkbookIsToldOnceItIsThere) {
    suite.remarkOn(office::PasteAs::Embedded, "one too many");
    session.PowerPointApp.release();
    choices.format = ExportFormat::Embedded;
    EXPECT_TRUE(powerpoint::InsertOneItem(session, list.rows.front(), choices));
    ASSERT_EQ(notices.shown.size(), 1U);
    EXPECT_TRUE(notices.messages().front().ends_with("one too many"));
    suite.failures().failAlways("PasteSpecial");
    EXPECT_FALSE(powerpoint::InsertOneItem(session, list.rows.front(), choices));
    EXPECT_EQ(notices.shown.size(), 2U) << "only why it is not there";
}

TEST_F(FileFormatsTest, ArriveAndCountWhetherTheShapesAreHandedOverOrOnlyThere) {
    for (const bool handsOver : {true, false}) {
        if (!handsOver) suite.failures().failAlways("Shapes.PasteSpecial");
        for (const auto format : {ExportFormat::Embedded, ExportFormat::Linked}) {
            const int before = deck.slideCount();
            // A chart without a part of its own in the file can't be linked.
            list.rows.back().checked = format == ExportFormat::Embedded;
            exportAs(format);
            EXPECT_EQ(notices.messages(), Texts{});
            EXPECT_EQ(picturesOn(before + 1), Texts{"A caption"});
            if (format == ExportFormat::Linked) continue;
            EXPECT_EQ(picturesOn(before + 2), Texts{"Sales"});
        }
    }
}

}  // namespace
