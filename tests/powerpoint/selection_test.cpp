#include "export_stage.h"
#include "office/failure_patterns.h"
#include "powerpoint/selection_to_slide.h"

namespace {

using session::SlidePaste;
using Texts = std::vector<std::string>;

class SelectionTest : public stage::ExportStage {
protected:
    SelectionTest() {
        book.sheet("Sales").chart("Chart 1", {0, 0, 240, 150}).value("A1", 7.0);
        deck.addSlides(3);
    }

    void selectChart() {
        const auto sales = book.handle().get("Sheets").get("Item", "Sales");
        sales.call("ChartObjects", 1).call("Select");
    }
    void run(SlidePaste mode) {
        suite.log().clear();
        powerpoint::PasteSelectionToSlide(session, mode);
    }
    void show(int slide) {
        session.PowerPointApp.get("ActiveWindow").get("View").call("GotoSlide", slide);
    }
};

TEST_F(SelectionTest, ArrivesAsAPictureOnTheSlideOnShowAndBothWindowsArePutBack) {
    const auto window = session.PowerPointApp.get("ActiveWindow").toObject();
    show(2);
    window.put("ViewType", 7);
    suite.excel().selectRange("A1:C4");
    run(SlidePaste::Pictures);
    selectChart();
    run(SlidePaste::Pictures);
    const auto shapes = deck.slide(2).shapes();
    ASSERT_EQ(shapes.size(), 3U);
    EXPECT_DOUBLE_EQ(shapes[1].box().width, 3 * office_double::Worksheet::columnWidth);
    EXPECT_DOUBLE_EQ(shapes[2].box().width, 240);
    EXPECT_EQ(picturesOn(2), (Texts{"Sales A1:C4", "Chart 1"}));
    EXPECT_EQ(window.get("ViewType").toLong(), 7);
    EXPECT_EQ(session.ExcelApp.get("WindowState").toLong(), -4137);
    EXPECT_EQ(notices.messages(), Texts{});
}

TEST_F(SelectionTest, IsPastedAsItsModeAndKindAndTheVersionSay) {
    struct Case {
        SlidePaste mode;
        const char* version;
        Texts ofChart;
        Texts ofCells;
    };
    const std::string ribbon = "CommandBars.ExecuteMso(\"PasteSourceFormatting\")";
    const std::string old = "Shapes.PasteSpecial(DataType:=0)";
    for (const Case& it :
         {Case{SlidePaste::Pictures, "16.0", {"View.PasteSpecial(2)"}, {"View.PasteSpecial(6)"}},
          Case{SlidePaste::SourceFormatting, "16.0", {ribbon}, {ribbon}},
          Case{SlidePaste::SourceFormatting, "14.0", {old}, {ribbon}},
          Case{SlidePaste::EmbeddedObject,
               "16.0",
               {"Shapes.PasteSpecial(10)"},
               {"Shapes.PasteSpecial(10)"}},
          Case{SlidePaste::LinkedObject,
               "16.0",
               {"Shapes.PasteSpecial(Link:=True)"},
               {"Shapes.PasteSpecial(Link:=True)"}}}) {
        suite.powerPoint().setVersion(it.version);
        const auto asked = [&] {
            // What can't be pasted in a form ends the command, which is the caller's.
            static_cast<void>(office::ContinueOnFailure().attempt([&] { run(it.mode); }));
            Texts calls = suite.log().texts("PasteSpecial");
            for (const std::string& call : suite.log().texts("ExecuteMso")) calls.push_back(call);
            return calls;
        };
        suite.excel().selectRange("A1:C4");
        EXPECT_EQ(asked(), it.ofCells) << static_cast<int>(it.mode);
        selectChart();
        EXPECT_EQ(asked(), it.ofChart) << static_cast<int>(it.mode);
    }
}

TEST_F(SelectionTest, ABlankSlideGetsATitleForAPictureOfCells) {
    for (const auto& [version, layout] : {std::pair{"16.0", 11}, std::pair{"14.0", 1}}) {
        suite.powerPoint().setVersion(version);
        const auto slide = session.SessionPresentation.get("Slides").get("Item", 3).toObject();
        slide.put("Layout", 12);
        show(3);
        suite.excel().selectRange("A1");
        run(SlidePaste::Pictures);
        EXPECT_EQ(slide.get("Layout").toLong(), layout) << version;
    }
}

TEST_F(SelectionTest, TriesThreeWaysForAPictureOfCellsAndThenSaysSo) {
    suite.excel().selectRange("A1");
    suite.failures().failAlways("PasteSpecial");
    run(SlidePaste::Pictures);
    EXPECT_EQ(suite.log().texts("PasteSpecial"),
              (Texts{"View.PasteSpecial(6)", "Shapes.PasteSpecial(6)", "View.PasteSpecial()"}));
    EXPECT_EQ(suite.log().count("AlternativeText"), 0U) << "the last shape is the user's own";
    EXPECT_EQ(
        notices.messages(),
        Texts{
            "Could not paste the selection to PowerPoint. Click the target slide and try again."});
    selectChart();
    run(SlidePaste::Pictures);
    EXPECT_EQ(notices.shown.size(), 1U) << "nothing is said of a chart";
    EXPECT_EQ(suite.log().count("PasteSpecial"), 2U);
}

TEST_F(SelectionTest, RefusesSeveralAreasAndLeavesExcelAsItIs) {
    suite.excel().selectRange("A1,C3");
    run(SlidePaste::Pictures);
    EXPECT_EQ(notices.messages(), Texts{"Murvane does not support multiple selection"});
    EXPECT_EQ(session.ExcelApp.get("WindowState").toLong(), -4143);
    EXPECT_EQ(deck.slide(1).shapes().size(), 1U);
}

TEST_F(SelectionTest, ChangesNothingInAPresentationThatIsOpenForReadingOnly) {
    deck.readOnly = true;
    for (const auto mode : {SlidePaste::Pictures, SlidePaste::SourceFormatting,
                            SlidePaste::EmbeddedObject, SlidePaste::LinkedObject}) {
        for (const bool isChart : {true, false}) {
            suite.excel().selectRange("A1");
            if (isChart) selectChart();
            notices.shown.clear();
            run(mode);
            ASSERT_EQ(notices.shown.size(), 1U) << static_cast<int>(mode) << isChart;
            EXPECT_EQ(notices.messages()[0].find("The presentation is opened for reading only."),
                      0U);
            EXPECT_EQ(suite.log().count("PasteSpecial"), 0U);
        }
    }
}

TEST_F(SelectionTest, TakesTheLastSlideWhereNoneIsOnShowAndAsksForAPresentation) {
    suite.excel().selectRange("A1");
    suite.failures().fail("View.Slide");
    run(SlidePaste::Pictures);
    EXPECT_EQ(deck.slide(3).shapes().size(), 2U);
    deck.close();
    run(SlidePaste::Pictures);
    suite.quitPowerPoint();
    run(SlidePaste::Pictures);
    const std::string asks =
        "No open PowerPoint found. \r Please open an existing presentation or create a new one";
    EXPECT_EQ(notices.messages(), (Texts{asks, asks}));
}

TEST_F(SelectionTest, WaitsWhereCopyAndPasteGoOnInAnotherProcess) {
    suite.setPacing(office::Pacing::Asynchronous);
    const auto sleptFor = [&](SlidePaste mode) {
        host.sleptMs = 0;
        static_cast<void>(office::ContinueOnFailure().attempt([&] { run(mode); }));
        return host.sleptMs;
    };
    suite.excel().selectRange("A1");
    EXPECT_EQ(sleptFor(SlidePaste::Pictures), 500U);
    selectChart();
    EXPECT_EQ(sleptFor(SlidePaste::Pictures), 1000U);
    book.chartSheet("Overview");
    book.handle().get("Sheets").get("Item", "Overview").call("Activate");
    EXPECT_EQ(sleptFor(SlidePaste::Pictures), 300U);
}

}  // namespace
