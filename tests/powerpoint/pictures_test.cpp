#include <fmt/format.h>

#include "export_stage.h"
#include "powerpoint/formats.h"
#include "powerpoint/picture_styles.h"
#include "powerpoint/pictures.h"
#include "support/approved.h"

namespace {

using Names = std::set<std::string>;
using stage::chartRow;
using stage::rangeRow;

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

    bool insert(const catalogue::ExportItem& row, std::int32_t slide) {
        const auto slides = deck.handle().get("Slides");
        return powerpoint::InsertPicture(session, row, slides.get("Item", slide).toObject());
    }
    [[nodiscard]] std::int32_t chartsLeft() const {
        const auto sales = book.handle().get("Sheets").get("Item", "Sales");
        return sales.get("ChartObjects").get("Count").toLong();
    }
    office_double::Shape lastShape(std::int32_t slide) { return deck.slide(slide).shapes().back(); }
};

TEST_F(PicturesTest, AChartArrivesAtItsNaturalSizeInTheMiddleOfTheSlide) {
    insert(chartRow("Chart 1", "Sales"), 2);
    EXPECT_TRUE(lastShape(2).isPicture());
    EXPECT_DOUBLE_EQ(lastShape(2).box().width, 240);
    EXPECT_DOUBLE_EQ(lastShape(2).box().left, 360);
    EXPECT_DOUBLE_EQ(lastShape(2).box().top, 195);
    EXPECT_EQ(host.filesLeft(), Names{});
    const std::string call = suite.log().texts("AddPicture").at(0);
    EXPECT_NE(call.find("EmbeddedChart_Chart 1.png\", 0, -1, 0, 0, -1, -1)"), std::string::npos)
        << "neither linked nor left out of the file: " << call;
}

TEST_F(PicturesTest, ChartSheetsShareOneFileThatStays) {
    insert(stage::chartSheetRow("Overview"), 1);
    insert(stage::chartSheetRow("Outlook"), 2);
    EXPECT_EQ(host.filesLeft(), Names{"EmbeddedChart_.png"});
    EXPECT_EQ(lastShape(1).alternativeText(), "Overview");
    EXPECT_EQ(lastShape(2).alternativeText(), "Outlook");
}

TEST_F(PicturesTest, ARangeGoesThroughAChartThatIsGoneAfterwards) {
    insert(rangeRow("Total", "Sales"), 1);
    EXPECT_TRUE(lastShape(1).isPicture());
    EXPECT_DOUBLE_EQ(lastShape(1).box().width, 3 * office_double::Worksheet::columnWidth);
    EXPECT_DOUBLE_EQ(lastShape(1).box().height, 4 * office_double::Worksheet::rowHeight);
    EXPECT_EQ(chartsLeft(), 1);
    EXPECT_EQ(host.filesLeft(), Names{});
}

TEST_F(PicturesTest, ANameThatLeadsToNoRangeGetsANoticeAndNoPicture) {
    for (const char* name : {"Rate", "Nowhere"}) {
        EXPECT_FALSE(insert(rangeRow(name, "Sales"), 1));
        EXPECT_EQ(notices.messages().back(),
                  fmt::format("? Named range '{}' not found or invalid.", name));
    }
    EXPECT_EQ(deck.slide(1).shapes().size(), 1U);
}

TEST_F(PicturesTest, RangesOfOneNameOnTwoSheetsExportTheirOwnPictures) {
    book.sheet("North").define("Area", "A1:B2");
    book.sheet("South").define("Area", "A1:E2");
    book.sheet("West").define("Area", "A1:A2,C3");
    book.define("Area", "=Sales!$A$1:$C$1");
    const std::vector<std::pair<const char*, int>> columns = {
        {"South", 5}, {"North", 2}, {"Sales", 3}};
    for (const auto& [sheet, count] : columns) {
        EXPECT_TRUE(insert(rangeRow("Area", sheet), 1));
        EXPECT_DOUBLE_EQ(lastShape(1).box().width, count * office_double::Worksheet::columnWidth)
            << sheet;
    }
    EXPECT_FALSE(insert(rangeRow("Area", "Overview"), 1)) << "nor does a namesake stand in";
}

TEST_F(PicturesTest, NamesThatNoFileCanHaveExportAndStayInTheFolder) {
    for (const std::string& name :
         {std::string("../../Chart"), std::string("Revenue/Cost"), std::string("a<b"),
          std::string("C:\\x"), std::string(300, 'x')}) {
        book.sheet("Sales").chart(name);
        insert(chartRow(name, "Sales"), 1);
        EXPECT_EQ(lastShape(1).alternativeText(), name);
    }
    EXPECT_EQ(host.filesLeft(), Names{});
}

TEST_F(PicturesTest, WhatIsMissingFailsForTheCallerAndARangeLeavesNoChartBehind) {
    EXPECT_THROW(insert(chartRow("Chart 9", "Sales"), 1), office::Failure);
    EXPECT_THROW(insert(stage::chartSheetRow("Nowhere"), 1), office::Failure);
    suite.failures().fail("Chart.Export");
    EXPECT_THROW(insert(rangeRow("Total", "Sales"), 1), office::Failure);
    EXPECT_EQ(chartsLeft(), 1);
    suite.failures().fail("Shape.AlternativeText");
    EXPECT_NO_THROW(insert(chartRow("Chart 1", "Sales"), 1)) << "it is a picture all the same";
}

TEST_F(PicturesTest, OneItemGoesToTheSlideInViewOfTheActivePresentation) {
    auto& second = suite.powerPoint().addPresentation("Second.pptx");
    second.addSlides(2);
    EXPECT_TRUE(powerpoint::InsertOneItem(session, chartRow("Chart 1", "Sales"), choices));
    EXPECT_EQ(second.slide(1).shapes().size(), 2U);
    EXPECT_EQ(deck.slide(1).shapes().size(), 1U);
}

TEST_F(PicturesTest, OneItemThatIsNotThereHasBeenExplained) {
    const auto insertOne = [&](const catalogue::ExportItem& row) {
        return powerpoint::InsertOneItem(session, row, choices);
    };
    EXPECT_FALSE(insertOne(rangeRow("Nowhere", "Sales")));
    EXPECT_FALSE(insertOne(chartRow("Chart 9", "Sales")));
    deck.readOnly = true;
    EXPECT_FALSE(insertOne(chartRow("Chart 1", "Sales")));
    EXPECT_EQ(notices.messages().back().find("The presentation is opened for reading only."), 0U);
    deck.readOnly = false;
    suite.failures().fail("View.Slide");
    EXPECT_FALSE(insertOne(chartRow("Chart 1", "Sales")));
    EXPECT_EQ(notices.messages().back(),
              "No slide is in view. Add a slide, or show one in the normal view, then try again.");
    deck.close();
    EXPECT_FALSE(insertOne(chartRow("Chart 1", "Sales")));
    ASSERT_EQ(notices.shown.size(), 5U);
    EXPECT_EQ(notices.messages().back(),
              "No PowerPoint presentation is open. Open or create a presentation, then try again.");
}

class PictureStyle : public stage::ExportStage {
protected:
    office_double::Shape newPicture() { return deck.addSlide().addPicture({0, 0, 100, 100}); }
};

TEST_F(PictureStyle, SetsWhatIsApproved) {
    std::string all;
    for (std::int16_t look = 0; look <= 5; ++look) {
        suite.log().clear();
        powerpoint::ApplyPictureStyle(session::PictureLook{look}, newPicture().handle());
        all += fmt::format("style {}\n", look);
        for (const auto& call : suite.log().calls()) {
            if (call.kind == support::CallKind::Put) all += "  " + call.text() + "\n";
        }
    }
    support::expectApprovedText(all, "picture_styles.txt");
}

TEST_F(PictureStyle, GoesOnWhereTheShapeRefusesASetting) {
    const auto picture = newPicture();
    suite.failures().failAlways("ColorFormat.RGB");
    suite.failures().fail("ShadowFormat.Size");
    powerpoint::ApplyPictureStyle(session::PictureLook::Shadow, picture.handle());
    EXPECT_TRUE(picture.hasShadow());
    EXPECT_NEAR(picture.handle().get("Shadow").get("OffsetY").toDouble(), 8.12132, 1e-3);
}

}  // namespace
