#include "destinations/pdf_run.h"
#include "support/automation.h"
#include "word_stage.h"

namespace {

class PdfRunTest : public stage::WordStage {
protected:
    PdfRunTest() {
        test.suite.quitWord();
        test.suite.log().clear();
        add("Chart 1", "Sales", "Turnover");
    }
    void exportPdf() {
        destinations::RowBatch batch{session, list, [](const auto&, const auto&) {}};
        destinations::ExportRowsToPdf(batch, {}, "/out.pdf");
    }
};

TEST_F(PdfRunTest, EndsTheWordThatItHasStartedUnlessTheUserHasADocumentThere) {
    struct Case {
        const char* failing;
        bool userOpensOne;
        std::size_t quits;
    };
    for (const Case& each :
         {Case{"", false, 1}, Case{"", true, 0}, Case{"Document.Close", false, 1},
          Case{"Document.Close", true, 0}, Case{"Documents.Add", false, 1},
          Case{"Document.ExportAsFixedFormat", false, 1}}) {
        if (*each.failing != 0) test.suite.failures().fail(each.failing);
        test.host.onEvents = [&] {
            if (each.userOpensOne) test.suite.word().addDocument("Letter.docx");
        };
        support::failureOf([&] { exportPdf(); });
        EXPECT_EQ(test.suite.log().count("Application.Quit"), each.quits) << each.failing;
        test.suite.quitWord();
        test.suite.log().clear();
    }
}

TEST_F(PdfRunTest, LeavesAWordThatRunsAndPutsTheTitleIntoTheFile) {
    test.suite.word().addDocument("Letter.docx");
    exportPdf();
    EXPECT_EQ(test.suite.log().count("Application.Quit"), 0U);
    EXPECT_EQ(test.suite.word().open().size(), 1U);
    EXPECT_NE(test.suite.log().texts("ExportAsFixedFormat").at(0).find("IncludeDocProps:=True"),
              std::string::npos);
}

TEST_F(PdfRunTest, LeavesNoHeadingOfAPictureThatDidNotCome) {
    list.rows.front().caption = "Häuser\r\n2026 😀";
    add("Chart 2", "Sales", "Rents");
    add("Chart 1", "Sales", "");
    std::vector<std::string> texts;
    test.host.onEvents = [&] {
        texts.clear();
        const auto pdf = test.suite.word().active();
        for (const auto& each : dynamic_cast<office_double::Document&>(*pdf).paragraphs())
            texts.push_back(each.text);
    };
    using Texts = std::vector<std::string>;
    for (const auto& [failing, left] :
         {std::pair(1, Texts{"Rents", ""}), std::pair(2, Texts{"Häuser\n2026 😀", ""})}) {
        test.suite.failures().fail("Selection.Paste", failing);
        exportPdf();
        EXPECT_EQ(texts, left);
    }
}

TEST_F(PdfRunTest, TakesOutTheParagraphOfAPictureThatDidNotCome) {
    list.rows.front().caption.clear();
    add("Chart 2", "Sales", "");
    add("Chart 1", "Sales", "");
    for (const std::size_t nth : {1U, 2U}) {
        test.suite.log().clear();
        test.suite.failures().fail("Selection.Paste", static_cast<int>(nth));
        exportPdf();
        const auto count = [&](const char* member) { return test.suite.log().count(member); };
        EXPECT_EQ(count("Selection.Paste"), 3U);
        EXPECT_EQ(count("Selection.TypeParagraph"), nth) << "the first one is there";
        EXPECT_EQ(count("Selection.TypeBackspace"), nth - 1);
    }
}

}  // namespace
