#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "session/file_names.h"
#include "session/waits.h"
#include "session/workbook_prompt.h"
#include "session_doubles/test_session.h"
#include "support/automation.h"

namespace {

using session_doubles::TestSession;
using Words = std::vector<std::string>;

const char* const file = "/documents/Budget.xlsx";

TEST(WorkbookPrompt, SaysThatNoFileWasSelected) {
    TestSession test;
    test.suite.excel();
    test.attach();
    session::OpenWorkbookPrompt(test.session);
    EXPECT_EQ(test.notices.messages(), Words{"No file selected."});
    EXPECT_EQ(test.suite.log().texts("Application.GetOpenFilename"),
              Words{"Application.GetOpenFilename(FileFilter:=\"Excel Files *.xls* (*.xls*),\", "
                    "Title:=\"Please choose a file to open\")"});
}

TEST(WorkbookPrompt, OpensAFileThatIsInUseAfterSayingSo) {
    TestSession test;
    test.suite.excel().addFile(file, [](office_double::Workbook& book) { book.sheet("A"); });
    test.suite.excel().answerOpenPrompt(file);
    test.host.files = {file};
    test.host.heldFiles = {file};
    test.attach();
    session::OpenWorkbookPrompt(test.session);
    EXPECT_EQ(test.notices.messages(), Words{"File already open"});
    EXPECT_NE(test.suite.excel().findOpen("Budget.xlsx"), nullptr);
}

TEST(WorkbookPrompt, SaysWhyAFileThatWasChosenCouldNotBeOpened) {
    TestSession test;
    test.suite.excel().answerOpenPrompt(file);
    test.attach();
    session::OpenWorkbookPrompt(test.session);
    ASSERT_EQ(test.notices.shown.size(), 1U);
    EXPECT_NE(test.notices.shown[0].message.find("Budget.xlsx"), std::string::npos);
}

TEST(FileInUse, IsNoneThatIsNotThere) {
    const std::pair<const char*, bool> cases[] = {
        {"", false}, {"/none", false}, {"/free", false}, {"/held", true}};
    TestSession test;
    test.host.files = {"/free", "/held"};
    test.host.heldFiles = {"/held"};
    for (const auto& [name, isOpen] : cases)
        EXPECT_EQ(session::IsFileOpen(test.session, name), isOpen) << name;
}

TEST(FileNames, MayBeAnythingThatStaysInItsFolder) {
    for (const char* name : {"Chart 1.png", "Größe.png", "..png", "a:b", "EmbeddedChart_.png"})
        EXPECT_NO_THROW(session::requireFileName(name)) << name;
    for (const std::string name : {"", ".", "..", "../a", "a/b", "a\\b", "a\nb", "a\x7F"})
        EXPECT_EQ(support::failureOf([&] { session::requireFileName(name); }), 75) << name;
    EXPECT_EQ(support::failureOf([&] { session::requireFileName(std::string("a\0b", 3)); }), 75);
}

TEST(Waits, LastAsLongAsTheySayWithAnAsynchronousClipboardAlone) {
    TestSession test;
    session::WaitMilliseconds(test.session, 250);
    EXPECT_EQ(test.host.sleptMs, 0U);
    EXPECT_EQ(test.host.pumps, 1);
    test.suite.setPacing(office::Pacing::Asynchronous);
    session::WaitMilliseconds(test.session, 250);
    EXPECT_EQ(test.host.sleptMs, 250U);
    EXPECT_EQ(test.host.pumps, 251);
    session::WaitMilliseconds(test.session, 0);
    EXPECT_EQ(test.host.sleptMs, 250U);
}

TEST(Waits, EndWhenTheClockWrapsAround) {
    TestSession test;
    test.suite.setPacing(office::Pacing::Asynchronous);
    for (const std::uint32_t start : {0xFFFFFFF0U, 0x7FFFFFF0U}) {
        test.host.now = start;
        session::WaitMilliseconds(test.session, 100);
        EXPECT_LE(test.host.sleptMs, 100U);
        test.host.sleptMs = 0;
    }
}

}  // namespace
