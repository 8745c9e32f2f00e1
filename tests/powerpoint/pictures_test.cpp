#include "export_stage.h"
#include "powerpoint/pictures.h"

namespace {

using Names = std::set<std::string>;
using office_double::Shape;

class PicturesTest : public stage::ExportStage {
protected:
    PicturesTest() {
        book.sheet("Sales").chart("Chart 1", {0, 0, 240, 150});
        book.chartSheet("Overview");
        book.chartSheet("Outlook");
        book.define("Total", "=Sales!$A$1:$C$4");
        book.define("Rate", "=42");
        deck.addSlides(2);
    }

    const Shape& lastShape(std::size_t slide) { return *deck.slide(slide).shapes().back(); }
};

TEST_F(PicturesTest, AChartArrivesAtItsNaturalSizeInTheMiddleOfTheSlide) {
    powerpoint::InsertEmbeddedChartPicture(session, "Sales", "Chart 1", 2);
    EXPECT_EQ(lastShape(2).kind(), Shape::Kind::Picture);
    EXPECT_DOUBLE_EQ(lastShape(2).box().width, 240);
    EXPECT_DOUBLE_EQ(lastShape(2).box().left, 360);
    EXPECT_DOUBLE_EQ(lastShape(2).box().top, 195);
    EXPECT_EQ(host.filesLeft(), Names{});
}

TEST_F(PicturesTest, ChartSheetsShareOneFileThatStays) {
    powerpoint::InsertChartSheetPicture(session, "Overview", 1);
    powerpoint::InsertChartSheetPicture(session, "Outlook", 2);
    EXPECT_EQ(host.filesLeft(), Names{"EmbeddedChart_.png"});
    EXPECT_EQ(lastShape(1).alternativeText(), "Overview");
    EXPECT_EQ(lastShape(2).alternativeText(), "Outlook");
}

TEST_F(PicturesTest, ARangeGoesThroughAChartThatIsGoneAfterwards) {
    powerpoint::InsertRangePicture(session, "Total", 1);
    EXPECT_EQ(lastShape(1).kind(), Shape::Kind::Picture);
    EXPECT_DOUBLE_EQ(lastShape(1).box().width, 3 * office_double::Worksheet::columnWidth);
    EXPECT_DOUBLE_EQ(lastShape(1).box().height, 4 * office_double::Worksheet::rowHeight);
    EXPECT_EQ(
        book.handle().get("Sheets").get("Item", "Sales").get("ChartObjects").get("Count").toLong(),
        1);
    EXPECT_EQ(host.filesLeft(), Names{});
}

TEST_F(PicturesTest, ANameThatLeadsToNoRangeGetsANoticeAndNoPicture) {
    for (const char* name : {"Rate", "Nowhere"}) {
        powerpoint::InsertRangePicture(session, name, 1);
    }
    EXPECT_EQ(notices.messages(),
              (std::vector<std::string>{"? Named range 'Rate' not found or invalid.",
                                        "? Named range 'Nowhere' not found or invalid."}));
    EXPECT_EQ(deck.slide(1).shapes().size(), 1U);
}

TEST_F(PicturesTest, ThePictureGoesToTheFirstOpenPresentation) {
    auto& second = suite.powerPoint().addPresentation("Second.pptx");
    second.addSlides(2);
    powerpoint::InsertEmbeddedChartPicture(session, "Sales", "Chart 1", 1);
    EXPECT_EQ(picturesOn(1).size(), 1U);
    EXPECT_EQ(second.slide(1).shapes().size(), 1U);
}

TEST_F(PicturesTest, ThePictureIsNeitherLinkedNorLeftOutOfTheFile) {
    powerpoint::InsertEmbeddedChartPicture(session, "Sales", "Chart 1", 1);
    const std::string call = suite.log().texts("AddPicture").at(0);
    EXPECT_NE(call.find("EmbeddedChart_Chart 1.png\", 0, -1, 0, 0, -1, -1)"), std::string::npos)
        << call;
}

TEST_F(PicturesTest, TheAlternativeTextIsTheCaptionOrElseTheName) {
    powerpoint::InsertEmbeddedChartPicture(session, "Sales", "Chart 1", 1, "Sales by region");
    EXPECT_EQ(lastShape(1).alternativeText(), "Sales by region");
    powerpoint::InsertEmbeddedChartPicture(session, "Sales", "Chart 1", 1);
    EXPECT_EQ(lastShape(1).alternativeText(), "Chart 1");
}

TEST_F(PicturesTest, APictureThatTakesNoAlternativeTextIsAPictureAllTheSame) {
    suite.failures().fail("Shape.AlternativeText");
    EXPECT_NO_THROW(powerpoint::InsertEmbeddedChartPicture(session, "Sales", "Chart 1", 1));
}

TEST_F(PicturesTest, ANameThatNoFileCanHaveFailsForTheCallerAndStaysInTheFolder) {
    book.sheet("Sales").chart("../../Chart");
    EXPECT_THROW(powerpoint::InsertEmbeddedChartPicture(session, "Sales", "../../Chart", 1),
                 office::Failure);
    EXPECT_EQ(host.filesLeft(), Names{});
}

TEST_F(PicturesTest, AMissingChartFailsForTheCaller) {
    EXPECT_THROW(powerpoint::InsertEmbeddedChartPicture(session, "Sales", "Chart 9", 1),
                 office::Failure);
    EXPECT_THROW(powerpoint::InsertChartSheetPicture(session, "Nowhere", 1), office::Failure);
}

}  // namespace
