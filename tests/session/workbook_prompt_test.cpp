#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "session/workbook_prompt.h"
#include "session_doubles/test_session.h"

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

TEST(FileInUse, IsTheFallbackForAFileThatIsNotThere) {
    const std::tuple<const char*, bool, bool> cases[] = {
        {"", false, false},    {"  ", true, true},     {"/none", false, false},
        {"/none", true, true}, {"/free", true, false}, {"/held", false, true},
    };
    TestSession test;
    test.host.files = {"/free", "/held"};
    test.host.heldFiles = {"/held"};
    for (const auto& [name, fallback, isOpen] : cases)
        EXPECT_EQ(session::IsFileOpen(test.session, name, fallback), isOpen) << name;
}

}  // namespace
