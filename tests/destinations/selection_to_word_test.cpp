#include "destinations/selection_to_word.h"
#include "office/failure_patterns.h"
#include "word_stage.h"

namespace {

using office::Value;
using office::model::word::Anchoring;
using session::WordPaste;
using Texts = std::vector<std::string>;

class SelectionToWordTest : public stage::WordStage {
protected:
    void paste(WordPaste mode) { destinations::PasteSelectionToWord(session, mode); }

    [[nodiscard]] Texts boxes() const {
        Texts texts;
        for (const auto& message : test.host.messages) texts.push_back(message.text);
        return texts;
    }
    void selectChart(const Value& which = 1) const {
        session.ActiveBook.get("Sheets")
            .get("Item", "Sales")
            .call("ChartObjects", which)
            .call("Select");
    }
    [[nodiscard]] double textWidth() {
        const auto page = document.page();
        return page.width - page.leftMargin - page.rightMargin;
    }
};

TEST_F(SelectionToWordTest, AChartSpansTheTextAndCellsKeepTheirSize) {
    selectChart();
    paste(WordPaste::Picture);
    test.suite.excel().selectRange("A1:C4");
    paste(WordPaste::Picture);
    ASSERT_EQ(document.objectCount(Anchoring::Inline), 2);
    double widest = 0;
    double narrowest = 1e9;
    for (std::int32_t i = 1; i <= 2; ++i) {
        const double width = document.objectAt(Anchoring::Inline, i)->size().width;
        widest = std::max(widest, width);
        narrowest = std::min(narrowest, width);
    }
    EXPECT_NEAR(widest, textWidth(), 0.1);
    EXPECT_LT(narrowest, textWidth() / 2);
    EXPECT_TRUE(boxes().empty());
    EXPECT_TRUE(session.ExcelApp.get("DisplayAlerts").toBool());
}

TEST_F(SelectionToWordTest, AHighChartStaysOnItsPageInItsProportions) {
    book.sheet("Sales").chart("Tower", {0, 0, 100, 1200});
    selectChart("Tower");
    paste(WordPaste::Picture);
    const auto size = document.objectAt(Anchoring::Inline, 1)->size();
    const auto page = document.page();
    EXPECT_LT(size.height, page.height - page.topMargin - page.bottomMargin);
    EXPECT_NEAR(size.height / size.width, 12, 0.1);
}

TEST_F(SelectionToWordTest, WhatWasPastedIsFoundAheadOfOtherPictures) {
    test.suite.excel().selectRange("A1:C4");
    paste(WordPaste::Picture);
    const office::Object selection =
        document.handle().get("ActiveWindow").get("Selection").toObject();
    selection.call("HomeKey");
    selection.call("Paste");
    selection.call("MoveLeft", 1, 1, 1);
    selection.get("InlineShapes").get("Item", 1).put("AlternativeText", "new");
    ASSERT_EQ(document.objectCount(Anchoring::Inline), 2);
    EXPECT_EQ(document.objectAt(Anchoring::Inline, 1)->alternativeText(), "new");
}

TEST_F(SelectionToWordTest, SaysWhatIsMissing) {
    constexpr const char* noDocument = "The action requires an open Word document";
    constexpr const char* tablesOnly = "This icon refers to tables only";
    selectChart();
    paste(WordPaste::Table);
    session.ActiveBook.get("Sheets").get("Item", "Overview").call("Activate");
    paste(WordPaste::Table);
    EXPECT_EQ(boxes(), (Texts{tablesOnly, tablesOnly}));
    document.readOnly = true;
    paste(WordPaste::InlineEmbedded);
    ASSERT_EQ(test.notices.messages().size(), 1U);
    EXPECT_EQ(test.notices.messages()[0].find("The document is opened for reading only."), 0U);
    document.close();
    test.host.messages.clear();
    for (const auto mode : {WordPaste::Picture, WordPaste::InlineEmbedded,
                            WordPaste::FloatingLinked, WordPaste::Table})
        paste(mode);
    test.suite.quitWord();
    paste(WordPaste::Picture);
    EXPECT_EQ(boxes(), Texts(5, noDocument));
}

TEST_F(SelectionToWordTest, AFailureIsToldInABoxForEmbeddedObjectsAloneAndElseTheCallers) {
    selectChart();
    test.suite.failures().failAlways("Selection.PasteSpecial");
    test.suite.failures().failAlways("Selection.Paste");
    paste(WordPaste::InlineEmbedded);
    EXPECT_EQ(boxes(), Texts{"Operation has failed!Please make sure that no graphic is selected"});
    EXPECT_FALSE(session.WordApp);
    EXPECT_THROW(paste(WordPaste::FloatingLinked), office::Failure);
    EXPECT_THROW(paste(WordPaste::Picture), office::Failure);
    EXPECT_TRUE(session.ExcelApp.get("DisplayAlerts").toBool());
}

TEST_F(SelectionToWordTest, AChartIsCopiedAsItsModeSays) {
    const std::tuple<WordPaste, const char*> all[] = {
        {WordPaste::Picture, "Chart.CopyPicture"},
        {WordPaste::InlineEmbedded, "ChartArea.Copy"},
        {WordPaste::FloatingLinked, "ChartArea.Copy"}};
    for (const bool isChartSheet : {false, true}) {
        if (isChartSheet) {
            session.ActiveBook.get("Sheets").get("Item", "Overview").call("Activate");
        } else {
            selectChart();
        }
        for (const auto& [mode, copy] : all) {
            test.suite.log().clear();
            test.suite.failures().fail("Selection.PasteSpecial");
            office::ContinueOnFailure().attempt([&, which = mode] { paste(which); });
            EXPECT_EQ(test.suite.log().count(copy), 1U) << copy;
        }
    }
}

}  // namespace
