#include "export_stage.h"
#include "powerpoint/start_export.h"

namespace {

class StartExportTest : public stage::ExportStage {};

TEST_F(StartExportTest, CountsTheCheckedRowsAndKeepsExcelFromAsking) {
    add(stage::chartRow("A", "S"));
    add(stage::chartRow("B", "S"));
    list.rows[0].checked = false;
    session.CheckedCount = 9;
    powerpoint::StartPowerPointExport(session, list);
    EXPECT_EQ(session.CheckedCount, 1);
    EXPECT_FALSE(session.ExcelApp.get("DisplayAlerts").toBool());
}

TEST_F(StartExportTest, CountsTheCheckedRowsThatHaveASlideNumber) {
    deck.addSlides(3);
    add(stage::chartRow("A", "S", "1"));
    add(stage::chartRow("B", "S", ""));
    add(stage::chartRow("C", "S", "3"));
    add(stage::chartRow("D", "S", "2"));
    list.rows[3].checked = false;
    powerpoint::CountRowsWithSlideNumber(session, list);
    EXPECT_EQ(session.CheckedCount, 2);
}

TEST_F(StartExportTest, TheCountEndsAtANumberBeyondThePresentationWithoutAWord) {
    deck.addSlides(3);
    for (const char* slide : {"1", "4", "2"}) add(stage::chartRow("A", "S", slide));
    powerpoint::CountRowsWithSlideNumber(session, list);
    EXPECT_EQ(session.CheckedCount, 2);
    EXPECT_TRUE(notices.shown.empty());
}

}  // namespace
