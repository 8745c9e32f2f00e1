#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>

#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/outputs.h"
#include "office/text.h"
#include "support/temporary_folder.h"

namespace {

using Names = std::set<std::string>;
using catalogue::Destination;
using unattended::Output;
using unattended::RunError;
using unattended::UsageError;

class OutputsTest : public testing::Test {
protected:
    static constexpr bool overwrite = true;

    [[nodiscard]] std::unique_ptr<Output> outputAt(
        const std::string& name, bool overwrites = false,
        Destination destination = Destination::PowerPoint) const {
        return unattended::outputFor({destination, folder.file(name)}, overwrites);
    }

    static void writeNeighbour(Output& output, const std::string& text) {
        std::ofstream(output.neighbour(), std::ios::binary) << text;
    }

    [[nodiscard]] mode_t modeOf(const char* name) const {
        struct stat status = {};
        EXPECT_EQ(::stat(folder.file(name).c_str(), &status), 0);
        return status.st_mode & 0777U;
    }

    support::TemporaryFolder folder;
};

TEST_F(OutputsTest, ComesIntoBeingAtTheCommit) {
    const auto output = outputAt("out.pptx");
    writeNeighbour(*output, "whole");
    EXPECT_FALSE(folder.names().contains("out.pptx"));
    EXPECT_EQ(output->neighbour().extension(), ".pptx");
    output->commit();
    EXPECT_EQ(folder.names(), Names{"out.pptx"});
    EXPECT_EQ(folder.read("out.pptx"), "whole");
}

TEST_F(OutputsTest, WhatAKilledRunHasLeftGoesWithTheNextOne) {
    const pid_t ended = ::fork();
    if (ended == 0) ::_exit(0);
    ::waitpid(ended, nullptr, 0);
    std::string own = outputAt("out.pptx")->neighbour().parent_path().filename();
    const std::string pid = std::to_string(::getpid());
    ASSERT_NE(own.find(pid + "@"), std::string::npos) << own;
    own.replace(own.find(pid), pid.size(), std::to_string(ended));
    const std::string elsewhere = office::replaceAll(own, "@", "@x");
    for (const std::string& name : {own, elsewhere})
        std::filesystem::create_directories(folder.path() / name / "inner");
    static_cast<void>(outputAt("out.pptx")->neighbour());
    EXPECT_EQ(folder.names(), Names{elsewhere}) << "which another machine may be at work in";
    std::filesystem::create_directories(folder.path() / "site" / own);
    EXPECT_NO_THROW(static_cast<void>(outputAt("site", false, Destination::Html)));
}

TEST_F(OutputsTest, WithoutACommitAllIsAsItWas) {
    for (const Names& before : {Names{}, Names{"out.pptx"}}) {
        if (!before.empty()) folder.write("out.pptx", "old");
        {
            const auto output = outputAt("out.pptx", overwrite);
            writeNeighbour(*output, "half");
        }
        EXPECT_EQ(folder.names(), before);
    }
    EXPECT_EQ(folder.read("out.pptx"), "old");
}

TEST_F(OutputsTest, ReplacesWhatItMayAndKeepsItsModeAndGivesANewFileTheUsualOne) {
    ::chmod(folder.write("old.pptx", "old").c_str(), 0604);
    const mode_t mask = ::umask(0027);
    for (const char* name : {"old.pptx", "new.pptx"}) {
        const auto output = outputAt(name, overwrite);
        writeNeighbour(*output, "new");
        output->commit();
        EXPECT_EQ(folder.read(name), "new");
    }
    ::umask(mask);
    EXPECT_EQ(modeOf("old.pptx"), 0604U);
    EXPECT_EQ(modeOf("new.pptx"), 0640U);
}

TEST_F(OutputsTest, ATeamGoesOnSharingWhatOneOfThemReplacesOrMakes) {
    // Where this user may give files away; otherwise the group is the same anyway.
    constexpr gid_t team = 12345;
    const std::string old = folder.write("old.pptx", "old");
    const bool gaveAway = ::chown(old.c_str(), static_cast<uid_t>(-1), team) == 0;
    ::chmod(old.c_str(), 0660);
    // Of a shared folder: its group may write to new files, whatever the mask of the one who makes
    // them. Owner, group, mask and others, each with its permissions.
    const std::array<std::uint16_t, 18> rules = {2,      0,      1,      7,      0xFFFF, 0xFFFF,
                                                 4,      7,      0xFFFF, 0xFFFF, 0x10,   7,
                                                 0xFFFF, 0xFFFF, 0x20,   0,      0xFFFF, 0xFFFF};
    const bool isShared = ::setxattr(folder.path().c_str(), "system.posix_acl_default",
                                     rules.data(), sizeof rules, 0) == 0;
    const mode_t mask = ::umask(0077);
    for (const char* name : {"old.pptx", "new.pptx"}) {
        const auto output = outputAt(name, overwrite);
        writeNeighbour(*output, "new");
        output->commit();
    }
    ::umask(mask);
    struct stat status = {};
    ASSERT_EQ(::stat(old.c_str(), &status), 0);
    EXPECT_EQ(modeOf("old.pptx"), 0660U);
    EXPECT_TRUE(!gaveAway || status.st_gid == team) << status.st_gid;
    EXPECT_EQ(modeOf("new.pptx"), isShared ? 0660U : 0600U);
}

TEST_F(OutputsTest, AFileMadeMeanwhileIsLeftAlone) {
    {
        const auto output = outputAt("out.pptx");
        writeNeighbour(*output, "ours");
        folder.write("out.pptx", "theirs");
        try {
            output->commit();
            ADD_FAILURE();
        } catch (const RunError& error) {
            EXPECT_NE(std::string(error.what()).find("made by somebody else"), std::string::npos);
        }
    }
    EXPECT_EQ(folder.read("out.pptx"), "theirs");
    EXPECT_EQ(folder.names(), Names{"out.pptx"});
}

TEST_F(OutputsTest, NothingWrittenIsNoOutput) {
    const auto output = outputAt("out.pptx");
    EXPECT_THROW(output->commit(), RunError);
    static_cast<void>(output->neighbour());
    EXPECT_THROW(output->commit(), RunError);
}

TEST_F(OutputsTest, ALinkStaysALink) {
    std::filesystem::create_directory(folder.path() / "real");
    std::filesystem::create_symlink("link2.pptx", folder.path() / "link.pptx");
    std::filesystem::create_symlink("real/out.pptx", folder.path() / "link2.pptx");
    for (const bool isThere : {false, true}) {
        const auto output = outputAt("link.pptx", isThere);
        writeNeighbour(*output, isThere ? "new" : "old");
        output->commit();
        EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "link.pptx"));
        EXPECT_EQ(folder.read("real/out.pptx"), isThere ? "new" : "old");
    }
}

TEST_F(OutputsTest, WhatCannotBeWrittenIsFoundOutAtOnce) {
    folder.write("taken.pptx", "x");
    std::filesystem::create_directory(folder.path() / "full");
    folder.write("full/file.png", "x");
    std::filesystem::create_directory(folder.path() / "folder.pptx");
    const std::tuple<Destination, const char*, bool> all[] = {
        {Destination::PowerPoint, "out.pdf", false},
        {Destination::PowerPoint, "out", false},
        {Destination::PowerPoint, ".pptx", false},
        {Destination::PowerPoint, "missing/out.pptx", false},
        {Destination::PowerPoint, "taken.pptx", false},
        {Destination::PowerPoint, "folder.pptx", false},
        {Destination::PowerPoint, "OUT.PPTX", true},
        {Destination::Word, "out.docx", true},
        {Destination::Word, "out.pptx", false},
        {Destination::Pdf, "out.pdf", true},
        {Destination::Pdf, "out.docx", false},
        {Destination::Html, "new", true},
        {Destination::Html, "new/", true},
        {Destination::Html, "taken.pptx", false},
        {Destination::ImageFiles, "full", false},
        {Destination::ImageFiles, "missing/new", false},
        {Destination::ImageFiles, "folder.pptx", true}};
    for (const auto& [destination, name, isFine] : all) {
        const auto make = [&, to = destination, file = name] {
            static_cast<void>(outputAt(file, false, to));
        };
        if (isFine) {
            EXPECT_NO_THROW(make()) << name;
        } else {
            EXPECT_THROW(make(), UsageError) << name;
        }
    }
    EXPECT_THROW(static_cast<void>(unattended::outputFor({{}, "/proc/out.pptx"}, false)),
                 UsageError);
}

TEST_F(OutputsTest, AFolderComesIntoBeingOrTakesInWhatWasMade) {
    std::filesystem::create_directory(folder.path() / "empty");
    std::filesystem::create_directory(folder.path() / "full");
    folder.write("full/a.png", "old");
    folder.write("full/b.png", "theirs");
    for (const char* name : {"new/", "empty/", "full"}) {
        const auto output = outputAt(name, overwrite, Destination::ImageFiles);
        EXPECT_THROW(output->commit(), RunError);
        std::ofstream(output->neighbour() / "a.png") << "ours";
        std::filesystem::create_directory(output->neighbour() / "inner");
        std::ofstream(output->neighbour() / "inner" / "c.png") << "ours too";
        // A folder that is there may lie on another disk than what holds it.
        const auto place = folder.path() / (name == std::string("new/") ? "." : name);
        EXPECT_TRUE(
            std::filesystem::equivalent(output->neighbour().parent_path().parent_path(), place))
            << name;
        output->commit();
        EXPECT_EQ(folder.read(std::string(name) + "/a.png"), "ours");
        EXPECT_EQ(folder.read(std::string(name) + "/inner/c.png"), "ours too");
    }
    EXPECT_EQ(folder.read("full/b.png"), "theirs");
    EXPECT_EQ(folder.names(), (Names{"empty", "full", "new"}));
    EXPECT_NE(modeOf("new") & 0100U, 0U);
}

TEST_F(OutputsTest, AFolderWhereAFileShouldBeKeepsAllAsItWas) {
    namespace fs = std::filesystem;
    fs::create_directories(folder.path() / "site/pictures");
    folder.write("site/pictures/1.png", "old");
    for (const char* page : {"a.html", "c.html"}) folder.write(std::string("site/") + page, "old");
    fs::create_directory(folder.path() / "site/b.html");
    const auto output = outputAt("site", overwrite, Destination::Html);
    fs::create_directory(output->neighbour() / "pictures");
    for (const char* made : {"a.html", "b.html", "c.html", "pictures/2.png"})
        std::ofstream(output->neighbour() / made) << "new";
    EXPECT_THROW(output->commit(), RunError);
    EXPECT_EQ(folder.read("site/a.html") + folder.read("site/c.html"), "oldold");
    EXPECT_EQ(folder.read("site/pictures/1.png"), "old");
    fs::remove(folder.path() / "site/b.html");
    output->commit();
    EXPECT_EQ(folder.read("site/a.html") + folder.read("site/c.html"), "newnew");
    EXPECT_FALSE(fs::exists(folder.path() / "site/pictures/1.png"));
    EXPECT_EQ(folder.names(), Names{"site"});
}

TEST_F(OutputsTest, AnInputIsNeverWrittenOver) {
    const std::string deck = folder.write("deck.pptx", "x");
    std::filesystem::create_hard_link(deck, folder.path() / "same.pptx");
    const auto output = outputAt("same.pptx", overwrite);
    EXPECT_THROW(output->requireOtherThan(deck), UsageError);
    EXPECT_NO_THROW(output->requireOtherThan(folder.file("other.pptx")));
}

TEST_F(OutputsTest, AnInputHasToBeAFileThatCanBeRead) {
    EXPECT_NO_THROW(unattended::requireReadable(folder.write("b.xlsx", "x"), "workbook"));
    EXPECT_THROW(unattended::requireReadable(folder.path(), "workbook"), UsageError);
    EXPECT_THROW(unattended::requireReadable(folder.file("none.xlsx"), "workbook"), UsageError);
    EXPECT_NO_THROW(unattended::requireFile(folder.file("b.xlsx"), "workbook"));
    EXPECT_THROW(unattended::requireFile(folder.write("zero.xlsx", ""), "workbook"), UsageError);
    ::mkfifo(folder.file("pipe.xlsx").c_str(), 0600);
    EXPECT_NO_THROW(unattended::requireReadable(folder.file("pipe.xlsx"), "captions file"));
    EXPECT_THROW(unattended::requireFile(folder.file("pipe.xlsx"), "workbook"), UsageError);
}

}  // namespace
