#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/output_file.h"
#include "support/temporary_folder.h"

namespace {

using Names = std::set<std::string>;
using unattended::IfExists;
using unattended::OutputFile;
using unattended::RunError;
using unattended::UsageError;

class OutputFileTest : public testing::Test {
protected:
    void writeNeighbour(OutputFile& output, const std::string& text) {
        std::ofstream(output.neighbour(), std::ios::binary) << text;
    }

    [[nodiscard]] mode_t modeOf(const char* name) const {
        struct stat status = {};
        EXPECT_EQ(::stat(folder.file(name).c_str(), &status), 0);
        return status.st_mode & 0777U;
    }

    support::TemporaryFolder folder;
};

TEST_F(OutputFileTest, ComesIntoBeingAtTheCommit) {
    OutputFile output(folder.file("out.pptx"), IfExists::Refuse);
    writeNeighbour(output, "whole");
    EXPECT_FALSE(folder.names().contains("out.pptx"));
    EXPECT_EQ(output.neighbour().extension(), ".pptx");
    output.commit();
    EXPECT_EQ(folder.names(), Names{"out.pptx"});
    EXPECT_EQ(folder.read("out.pptx"), "whole");
}

TEST_F(OutputFileTest, WithoutACommitAllIsAsItWas) {
    for (const Names& before : {Names{}, Names{"out.pptx"}}) {
        if (!before.empty()) folder.write("out.pptx", "old");
        {
            OutputFile output(folder.file("out.pptx"), IfExists::Overwrite);
            writeNeighbour(output, "half");
        }
        EXPECT_EQ(folder.names(), before);
    }
    EXPECT_EQ(folder.read("out.pptx"), "old");
}

TEST_F(OutputFileTest, ReplacesWhatItMayAndKeepsItsModeAndGivesANewFileTheUsualOne) {
    ::chmod(folder.write("old.pptx", "old").c_str(), 0604);
    const mode_t mask = ::umask(0027);
    for (const char* name : {"old.pptx", "new.pptx"}) {
        OutputFile output(folder.file(name), IfExists::Overwrite);
        writeNeighbour(output, "new");
        output.commit();
        EXPECT_EQ(folder.read(name), "new");
    }
    ::umask(mask);
    EXPECT_EQ(modeOf("old.pptx"), 0604U);
    EXPECT_EQ(modeOf("new.pptx"), 0640U);
}

TEST_F(OutputFileTest, AFileMadeMeanwhileIsLeftAlone) {
    {
        OutputFile output(folder.file("out.pptx"), IfExists::Refuse);
        writeNeighbour(output, "ours");
        folder.write("out.pptx", "theirs");
        try {
            output.commit();
            ADD_FAILURE();
        } catch (const RunError& error) {
            EXPECT_NE(std::string(error.what()).find("made by somebody else"), std::string::npos);
        }
    }
    EXPECT_EQ(folder.read("out.pptx"), "theirs");
    EXPECT_EQ(folder.names(), Names{"out.pptx"});
}

TEST_F(OutputFileTest, NothingWrittenIsNoOutput) {
    OutputFile output(folder.file("out.pptx"), IfExists::Refuse);
    EXPECT_THROW(output.commit(), RunError);
    static_cast<void>(output.neighbour());
    EXPECT_THROW(output.commit(), RunError);
}

TEST_F(OutputFileTest, ALinkStaysALink) {
    folder.write("real.pptx", "old");
    std::filesystem::create_symlink("real.pptx", folder.path() / "link.pptx");
    OutputFile output(folder.file("link.pptx"), IfExists::Overwrite);
    writeNeighbour(output, "new");
    output.commit();
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "link.pptx"));
    EXPECT_EQ(folder.read("real.pptx"), "new");
}

TEST_F(OutputFileTest, WhatCannotBeWrittenIsFoundOutAtOnce) {
    folder.write("taken.pptx", "x");
    std::filesystem::create_directory(folder.path() / "folder.pptx");
    for (const char* name :
         {"out.pdf", "out", ".pptx", "missing/out.pptx", "taken.pptx", "folder.pptx"}) {
        EXPECT_THROW(OutputFile(folder.file(name), IfExists::Refuse), UsageError) << name;
    }
    EXPECT_THROW(OutputFile("/proc/out.pptx", IfExists::Refuse), UsageError);
    EXPECT_NO_THROW(OutputFile(folder.file("OUT.PPTX"), IfExists::Refuse));
}

TEST_F(OutputFileTest, AnInputIsNeverWrittenOver) {
    const std::string deck = folder.write("deck.pptx", "x");
    std::filesystem::create_hard_link(deck, folder.path() / "same.pptx");
    const OutputFile output(folder.file("same.pptx"), IfExists::Overwrite);
    EXPECT_THROW(output.requireOtherThan(deck), UsageError);
    EXPECT_NO_THROW(output.requireOtherThan(folder.file("other.pptx")));
}

TEST_F(OutputFileTest, AnInputHasToBeAFileThatCanBeRead) {
    EXPECT_NO_THROW(unattended::requireReadable(folder.write("b.xlsx", "x"), "workbook"));
    EXPECT_THROW(unattended::requireReadable(folder.path(), "workbook"), UsageError);
    EXPECT_THROW(unattended::requireReadable(folder.file("none.xlsx"), "workbook"), UsageError);
}

}  // namespace
