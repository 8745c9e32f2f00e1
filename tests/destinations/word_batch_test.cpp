#include "destinations/word_batch.h"
#include "office/package/document/reading_order.h"
#include "word_stage.h"

namespace {

using catalogue::ExportFormat;
using destinations::RowBatch;
using office::model::word::Anchoring;
namespace word = office::model::word;
using Texts = std::vector<std::string>;

class WordBatchTest : public stage::WordStage {
protected:
    WordBatchTest() { EXPECT_TRUE(destinations::AttachWord(session)); }

    void exportRows(ExportFormat format, const destinations::WordOptions& options = {}) {
        RowBatch batch{session, list, onFailedItem};
        result = destinations::ExportRowsToWord(batch, format, options);
    }

    /// How many pages begin with a break, and how many hold nothing.
    [[nodiscard]] std::pair<int, int> breaksAndEmptyPages() {
        int breaks = 0;
        int empty = 0;
        bool hasContent = false;
        for (const auto& paragraph : document.paragraphs()) {
            if (paragraph.breaksPageBefore) {
                ++breaks;
                if (!hasContent) ++empty;
                hasContent = false;
            }
            if (paragraph.objects > 0 || !paragraph.text.empty()) hasContent = true;
        }
        return {breaks, empty + (hasContent ? 0 : 1)};
    }

    [[nodiscard]] Texts descriptions(Anchoring anchoring) {
        Texts texts;
        for (std::int32_t i = 1; i <= document.objectCount(anchoring); ++i)
            texts.push_back(document.objectAt(anchoring, i)->alternativeText());
        return texts;
    }

    std::function<void(const catalogue::ExportItem&, const office::Failure&)> onFailedItem;
    destinations::WalkResult result;
};

TEST_F(WordBatchTest, EachItemStandsOnAPageOfItsOwnWithItsDescription) {
    addOfEachKind();
    exportRows(ExportFormat::Pictures);
    EXPECT_EQ(result.done, 3);
    EXPECT_EQ(breaksAndEmptyPages(), std::pair(3, 0));
    EXPECT_EQ(descriptions(Anchoring::Inline), (Texts{"Turnover", "Overview", "Turnover"}));
    EXPECT_TRUE(document.captions().empty());
    EXPECT_EQ(list.selected, -1);
    EXPECT_TRUE(session.ExcelApp.get("ScreenUpdating").toBool());
}

TEST_F(WordBatchTest, ANewDocumentBeginsWithTheFirstItem) {
    auto& fresh = test.suite.word().addDocument("New.docx");
    ASSERT_TRUE(destinations::AttachWord(session));
    addOfEachKind();
    exportRows(ExportFormat::Pictures);
    int breaks = 0;
    for (const auto& paragraph : fresh.paragraphs()) breaks += paragraph.breaksPageBefore ? 1 : 0;
    EXPECT_EQ(breaks, 2);
    EXPECT_EQ(document.objectCount(Anchoring::Inline), 0);
}

TEST_F(WordBatchTest, TheFirstItemTakesTheEmptyPageThatATemplateEndsWith) {
    document.typeParagraph();
    word::ParagraphChange breaks;
    breaks.breaksPageBefore = true;
    document.changeParagraph(breaks);
    addOfEachKind();
    exportRows(ExportFormat::Pictures);
    EXPECT_EQ(breaksAndEmptyPages(), std::pair(3, 0));
}

TEST_F(WordBatchTest, ItemsStandAtTheMarginsWhateverThePlainStyleSays) {
    addOfEachKind();
    exportRows(ExportFormat::Pictures);
    for (const auto& paragraph : office::package::paragraphsIn(document.body())) {
        if (!paragraph.find_child([](auto child) { return child.child("w:drawing"); })) continue;
        const auto indent = paragraph.child("w:pPr").child("w:ind");
        for (const char* const side : {"w:left", "w:right", "w:firstLine", "w:firstLineChars"})
            EXPECT_STREQ(indent.attribute(side).value(), "0") << side;
    }
}

TEST_F(WordBatchTest, CaptionsCountByTheirTextAndPicturesTakeWidthAndShadow) {
    addOfEachKind();
    exportRows(ExportFormat::Pictures, {.sameWidth = true, .caption = true, .shadow = true});
    EXPECT_EQ(document.captions(), (Texts{"Turnover 1", "Turnover 2"}));
    const auto page = document.page();
    const double width = page.width - page.leftMargin - page.rightMargin;
    const double height = page.height - page.topMargin - page.bottomMargin;
    for (std::int32_t i = 1; i <= 3; ++i) {
        const auto object = document.objectAt(Anchoring::Inline, i);
        EXPECT_NEAR(object->size().width, width, 0.1);
        EXPECT_LE(object->size().height, height / 2 + 0.1);
        EXPECT_TRUE(object->shadow().isShown);
        EXPECT_NEAR(object->shadow().blur, 15, 0.1);
    }
}

TEST_F(WordBatchTest, PicturesKeepTheirSizeUnlessThePaperCutsThemOff) {
    const struct {
        double width, height, expectedWidth, expectedHeight;
    } rows[] = {{240, 150, 240, 150},
                {500, 100, 500, 100},
                {902.6, 200, 451.3, 100},
                {100, 5932, 10, 593.2},
                {500, 1186.4, 250, 593.2}};
    for (const auto& row : rows) {
        const std::string name = std::to_string(row.width) + std::to_string(row.height);
        book.sheet("Sales").chart(name, {0, 0, row.width, row.height});
        add(name.c_str(), "Sales", "");
    }
    exportRows(ExportFormat::Pictures);
    for (std::int32_t i = 0; i < 5; ++i) {
        const auto size = document.objectAt(Anchoring::Inline, i + 1)->size();
        EXPECT_NEAR(size.width, rows[i].expectedWidth, 0.2) << i;
        EXPECT_NEAR(size.height, rows[i].expectedHeight, 0.2) << i;
    }
}

TEST_F(WordBatchTest, PicturesComeDownToTheWidthOfAColumnThatWouldCutThemOff) {
    auto section = document.body().child("w:sectPr");
    if (!section) section = document.body().append_child("w:sectPr");
    auto columns = section.append_child("w:cols");
    columns.append_attribute("w:num") = 2;
    columns.append_attribute("w:space") = 400;
    const double column = document.lineWidth();
    book.sheet("Sales").chart("Wide", {0, 0, column + 20, 100});
    add("Wide", "Sales", "");
    exportRows(ExportFormat::Pictures);
    EXPECT_NEAR(document.objectAt(Anchoring::Inline, 1)->size().width, column, 0.2);
}

TEST_F(WordBatchTest, WhatCannotBeCopiedLeavesNoPageBehindAndIsTold) {
    add("Gone", "Sales", "Turnover", session::ItemKind::Range);
    add("Chart 9", "Sales", "Turnover");
    add("Chart 1", "Sales", "");
    Texts failed;
    onFailedItem = [&](const auto& row, const auto&) { failed.push_back(row.name); };
    exportRows(ExportFormat::Pictures);
    EXPECT_EQ(failed, (Texts{"Gone", "Chart 9"}));
    EXPECT_EQ(breaksAndEmptyPages(), std::pair(1, 0));
}

TEST_F(WordBatchTest, PastesThatFailLeaveNoPageBehind) {
    addOfEachKind();
    Texts failed;
    onFailedItem = [&](const auto& row, const auto&) { failed.push_back(row.name); };
    auto& failures = test.suite.failures();
    const std::size_t before = document.paragraphs().size();
    for (int i = 0; i < 3; ++i) failures.fail("Selection.Paste");
    exportRows(ExportFormat::Pictures);
    EXPECT_EQ(failed.size(), 3U);
    ASSERT_EQ(document.paragraphs().size(), before) << "it is as it was";
    failures.fail("Selection.Paste", 3);
    exportRows(ExportFormat::Pictures);
    EXPECT_EQ(breaksAndEmptyPages(), std::pair(2, 0));

    auto& fresh = test.suite.word().addDocument("New.docx");
    ASSERT_TRUE(destinations::AttachWord(session));
    failures.fail("Selection.Paste");
    exportRows(ExportFormat::Pictures);
    EXPECT_EQ(fresh.paragraphs()[1].objects, 1) << "the second item begins it";
}

TEST_F(WordBatchTest, AFormThatIsRefusedIsToldAndTheOthersGoOn) {
    addOfEachKind();
    test.suite.failures().fail("Selection.PasteSpecial", 2);
    exportRows(ExportFormat::Editable);
    ASSERT_EQ(test.notices.shown.size(), 1U);
    EXPECT_EQ(test.notices.shown[0].message.substr(0, 48),
              "Could not paste 'Overview' into the document: Se");
    EXPECT_EQ(breaksAndEmptyPages(), std::pair(2, 0));
}

TEST_F(WordBatchTest, CancellingEndsItAfterTheItemAtHand) {
    addOfEachKind();
    test.host.onEvents = [this] { test.progress.isCancelled = true; };
    exportRows(ExportFormat::Pictures);
    EXPECT_TRUE(result.wasCancelled());
    EXPECT_EQ(document.objectCount(Anchoring::Inline), 1);
}

}  // namespace
