#include "destinations/pdf_dialog.h"
#include "destinations/word_dialog.h"
#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "word_stage.h"

namespace {

using catalogue::ExportFormat;
using forms_double::press;
using Texts = std::vector<std::string>;

class WordDialogTest : public stage::WordStage {
protected:
    WordDialogTest() {
        desktop.page.files = &test.host.written;
        test.host.onEvents = [this] { desktop.letEventsRun(); };
        test.host.home = "/home/me";
        addOfEachKind();
    }

    /// Answers the dialog's page by its links, then presses the button.
    void answer(const char* form, std::vector<const char*> links) {
        desktop.answer(form, [this, links](forms::Form& dialog) {
            for (const char* link : links)
                static_cast<void>(
                    dynamic_cast<catalogue::ExportDialog&>(dialog).wbStatus_BeforeNavigate2(
                        std::string("murvane://") + link));
            page = test.host.written.begin()->second;
            press(dialog, "ContinueOk");
            if (desktop.isLoaded(dialog)) forms_double::close(dialog);
        });
    }

    void startWord(ExportFormat format = ExportFormat::Pictures) {
        catalogue::ExportChoices choices;
        choices.destination = catalogue::Destination::Word;
        choices.format = format;
        destinations::StartWordExport(session, desktop, list, choices);
    }

    [[nodiscard]] bool pageHas(const char* text) const {
        return page.find(text) != std::string::npos;
    }

    forms_double::WindowlessDesktop desktop;
    std::string page;
};

TEST_F(WordDialogTest, SaysWhereItGoesAndHandsItsOptionsToTheBatch) {
    answer("DialogWord", {"toggle/addCaption", "toggle/SAMEWIDTH"});
    startWord();
    EXPECT_TRUE(pageHas("Report.docx") && pageHas("pictures")) << page;
    EXPECT_EQ(document.captions(), (Texts{"Turnover 1", "Turnover 2"}));
    EXPECT_TRUE(document.pdfs.empty());
    EXPECT_FALSE(session.WordApp);
}

TEST_F(WordDialogTest, APdfOnceAskedForIsMadeAndOpened) {
    test.host.variables["TEMP"] = "/tmp/me";
    test.host.files.insert("/tmp/me/MyApp/Report_20260131_090507.pdf");
    test.host.time = {2026, 1, 31, 9, 5, 7};
    answer("DialogWord", {"toggle/pdfOutput", "toggle/pdfOutput"});
    startWord();
    ASSERT_EQ(document.pdfs.size(), 1U);
    EXPECT_EQ(document.pdfs[0].path, "/tmp/me/MyApp/Report_20260131_090507.pdf");
    EXPECT_EQ(test.host.openedFiles, Texts{document.pdfs[0].path});
}

TEST_F(WordDialogTest, CancelMakesNoPdfEither) {
    test.host.onEvents = [this] {
        desktop.letEventsRun();
        test.progress.isCancelled = true;
    };
    answer("DialogWord", {"toggle/pdfOutput"});
    startWord();
    EXPECT_EQ(document.objectCount(office::model::word::Anchoring::Inline), 1);
    EXPECT_TRUE(document.pdfs.empty());
}

TEST_F(WordDialogTest, ObjectsTakeNoneOfThePictureOptions) {
    answer("DialogWord", {"toggle/addCaption"});
    startWord(ExportFormat::Linked);
    EXPECT_TRUE(pageHas("toggle/pdfOutput"));
    EXPECT_FALSE(pageHas("toggle/addCaption"));
}

TEST_F(WordDialogTest, WithoutADocumentItIsNotOpened) {
    test.suite.quitWord();
    startWord();
    EXPECT_EQ(test.notices.messages(), Texts{"The action requires an open Word document"});
    EXPECT_TRUE(desktop.record.empty());
}

TEST_F(WordDialogTest, StaysOpenOverADocumentThatIsOpenForReadingOnly) {
    document.readOnly = true;
    desktop.answer("DialogWord", [this](forms::Form& dialog) {
        press(dialog, "ContinueOk");
        ASSERT_EQ(test.notices.messages().size(), 1U);
        EXPECT_EQ(test.notices.messages()[0].find("The document is opened for reading only."), 0U);
        ASSERT_TRUE(desktop.isLoaded(dialog));
        document.readOnly = false;
        press(dialog, "ContinueOk");
    });
    startWord();
    EXPECT_EQ(document.objectCount(office::model::word::Anchoring::Inline), 3);
}

TEST_F(WordDialogTest, ItemsThatFailAreToldTogetherAtTheEnd) {
    add("Gone", "Sales", "", session::ItemKind::Range);
    answer("DialogWord", {});
    startWord();
    EXPECT_EQ(test.notices.messages(),
              Texts{"1 item(s) could not be exported:\rGone: Named range 'Gone' not found."});
    EXPECT_EQ(document.objectCount(office::model::word::Anchoring::Inline), 3);
}

enum class What { HeldDocument, Document, Workbook };

struct Closed {
    What what;
    const char* told;
};

class ClosedMeanwhile : public WordDialogTest, public testing::WithParamInterface<Closed> {
protected:
    void close() {
        if (GetParam().what == What::HeldDocument) test.suite.close(document.fullName());
        if (GetParam().what == What::Document) document.close();
        if (GetParam().what == What::Workbook) book.close();
    }
};

TEST_P(ClosedMeanwhile, IsToldInOneSentenceWithHowFarTheExportCame) {
    test.host.onEvents = [this] {
        desktop.letEventsRun();
        if (test.progress.calls.back() == "item 2 of 3") close();
    };
    answer("DialogWord", {});
    Texts told;
    try {
        startWord();
    } catch (const office::Failure& failure) {
        EXPECT_TRUE(GetParam().what == What::Document && failure.isRefusal());
        told = {failure.description()};
    }
    const Texts notices = test.notices.messages();
    told.insert(told.end(), notices.begin(), notices.end());
    EXPECT_EQ(told, Texts{GetParam().told});
}

INSTANTIATE_TEST_SUITE_P(
    WordDialogTest, ClosedMeanwhile,
    testing::Values(
        Closed{What::HeldDocument, "The document has been closed. 2 of 3 items were exported."},
        Closed{What::Document, "The document has been closed. 1 of 3 items were exported."},
        Closed{What::Workbook, "The workbook has been closed. 1 of 3 items were exported."}));

TEST_F(WordDialogTest, ThePdfFormMakesADocumentOfItsOwnAndStays) {
    struct Seen {
        const char* amount;
        const char* notice;
    };
    for (const Seen& seen :
         {Seen{"70", ""}, Seen{"500", "The size factor is a number from 1 to 100; 100 is used."},
          Seen{"wide", "The size factor is a number from 1 to 100; 70 is used."}}) {
        test.notices.shown.clear();
        test.host.openedFiles.clear();
        test.suite.log().clear();
        desktop.answer("DialogPDF", [&](forms::Form& form) {
            auto& dialog = dynamic_cast<destinations::DialogPDF&>(form);
            dialog.txtAmount.setText(seen.amount);
            press(form, "ContinueOk");
            EXPECT_TRUE(desktop.isLoaded(form));
            forms_double::close(form);
        });
        destinations::StartPdfExport(session, desktop, list, {});
        EXPECT_EQ(test.suite.log().count("Document.ExportAsFixedFormat"), 1U);
        EXPECT_EQ(test.suite.log().count("InlineShape.AlternativeText"), 3U);
        EXPECT_EQ(test.suite.word().open().size(), 1U) << "only the user's own is left";
        const Texts messages = test.notices.messages();
        // The double writes no file, which is told last.
        ASSERT_EQ(messages.size(), *seen.notice == 0 ? 1U : 2U);
        if (*seen.notice != 0) {
            EXPECT_EQ(messages.front(), seen.notice);
        }
        EXPECT_EQ(messages.back().find("PDF was created but couldn't be opened"), 0U);
    }
}

TEST_F(WordDialogTest, NoPdfIsMadeOfItemsThatAllFail) {
    list.rows.clear();
    add("Gone", "Sales", "Turnover", session::ItemKind::Range);
    test.suite.log().clear();
    desktop.answer("DialogPDF", [&](forms::Form& form) {
        press(form, "ContinueOk");
        forms_double::close(form);
    });
    destinations::StartPdfExport(session, desktop, list, {});
    EXPECT_EQ(test.suite.log().count("Document.ExportAsFixedFormat"), 0U);
    EXPECT_EQ(test.notices.messages(),
              Texts{"1 item(s) could not be exported:\rGone: Named range 'Gone' not found."});
}

}  // namespace
