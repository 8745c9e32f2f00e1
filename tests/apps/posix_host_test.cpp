#include <fcntl.h>
#include <fmt/format.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <memory>

#include "apps/claim.h"
#include "apps/posix_host.h"
#include "office/failure.h"
#include "office/process_folder_name.h"
#include "scripted_console.h"
#include "support/automation.h"
#include "support/temporary_folder.h"

namespace {

class PosixHostTest : public testing::Test {
protected:
    PosixHostTest() {
        ::unsetenv("TEMP");
        ::setenv("XDG_RUNTIME_DIR", folder.path().c_str(), 1);
    }

    [[nodiscard]] static mode_t modeOf(const std::filesystem::path& path) {
        struct stat status = {};
        EXPECT_EQ(::stat(path.c_str(), &status), 0);
        return status.st_mode & 0777U;
    }

    support::TemporaryFolder folder;
    ScriptedConsole console;
    std::unique_ptr<apps::PosixHost> host = std::make_unique<apps::PosixHost>(console);
};

TEST_F(PosixHostTest, TemporaryFilesStandInAFolderForThisUserAloneThatGoesWithTheHost) {
    const std::filesystem::path file = host->temporaryFile("Range_Total.png");
    std::ofstream(file) << "x";
    EXPECT_EQ(file.parent_path().parent_path(), folder.path());
    EXPECT_EQ(modeOf(file.parent_path()), 0700U);
    EXPECT_EQ(std::filesystem::path(host->temporaryFile("b")).parent_path(), file.parent_path());
    host.reset();
    EXPECT_EQ(folder.names(), std::set<std::string>{});
}

TEST_F(PosixHostTest, FilesAreReadWhole) {
    for (const char* name : {"b.html", "a.html"}) {
        std::ofstream(folder.path() / name, std::ios::binary) << "x\r\n" << std::string(1, '\0');
    }
    std::filesystem::create_directory(folder.path() / "c.html");
    const std::string path = folder.path().string();
    EXPECT_EQ(host->readFile(path + "/a.html"), std::string("x\r\n\0", 4));
    EXPECT_EQ(support::failureOf([&] { host->readFile(path + "/none"); }), 53);
    EXPECT_EQ(support::failureOf([&] { host->readFile(path + "/c.html"); }), 53);
}

TEST_F(PosixHostTest, FoldersOfProcessesThatAreNoMoreAreSweptAndNothingElse) {
    const pid_t ended = ::fork();
    if (ended == 0) ::_exit(0);
    ::waitpid(ended, nullptr, 0);
    const std::string mark = office::hostMark();
    const std::string orphan = fmt::format("murvane-of-{}{}abc", ended, mark);
    const std::set<std::string> others = {fmt::format("murvane-of-{}{}abc", ::getppid(), mark),
                                          fmt::format("murvane-of-{}@elsewhere-abc", ended),
                                          "murvane-of-",
                                          "murvane-of-12x",
                                          "murvane-of--1-a",
                                          fmt::format("murvane-{}-abc", ended)};
    std::filesystem::create_directories(folder.path() / orphan / "inner");
    for (const std::string& name : others) std::filesystem::create_directory(folder.path() / name);
    std::filesystem::create_symlink(
        "/", folder.path() / fmt::format("murvane-of-{}{}link", ended, mark));
    // Of a suite: where the environment says, and where they go if none can be made there.
    const support::TemporaryFolder named;
    ::setenv("TMPDIR", named.path().c_str(), 1);
    const std::filesystem::path ofASuite[] = {named.path() / orphan, "/tmp/" + orphan};
    for (const auto& one : ofASuite) std::filesystem::create_directory(one);
    static_cast<void>(host->temporaryFile("a.png"));
    ::unsetenv("TMPDIR");
    EXPECT_FALSE(folder.names().contains(orphan));
    for (const auto& one : ofASuite) EXPECT_FALSE(std::filesystem::exists(one)) << one;
    EXPECT_EQ(folder.names().size(), others.size() + 2) << "the link and the host's own";
    const std::string draft = host->makeDraftFolder(folder.path().string());
    folder.write("taken", "theirs");
    EXPECT_EQ(support::failureOf([&] { host->moveTo(draft, folder.file("taken")); }), 75);
    host->moveTo(draft, folder.file("free"));
    EXPECT_TRUE(host->folderCanBeWrittenTo(folder.file("free")));
}

TEST_F(PosixHostTest, AFolderThatTheUserNamesIsUsedAndStaysAndARuntimeFolderMayBeGone) {
    const support::TemporaryFolder own;
    ::setenv("TEMP", own.path().c_str(), 1);
    const auto placeOf = [](apps::PosixHost& any) {
        return std::filesystem::path(any.temporaryFile("a.png")).parent_path();
    };
    apps::PosixHost atTheSameTime(console);
    EXPECT_EQ(placeOf(*host).parent_path(), own.path());
    EXPECT_NE(placeOf(*host), placeOf(atTheSameTime));
    host = std::make_unique<apps::PosixHost>(console);
    EXPECT_EQ(own.names().size(), 1U) << "the other's";
    ::setenv("TEMP", "/proc", 1);
    EXPECT_EQ(placeOf(*host).parent_path(), folder.path());
    host = std::make_unique<apps::PosixHost>(console);
    ::unsetenv("TEMP");
    ::setenv("XDG_RUNTIME_DIR", "/nowhere/at/all", 1);
    EXPECT_TRUE(
        std::filesystem::exists(std::filesystem::path(host->temporaryFile("a.png")).parent_path()));
}

TEST_F(PosixHostTest, NamesThatLeadElsewhereAreRefused) {
    for (const char* name : {"", "..", "../a", "/etc/passwd", "a\nb"}) {
        EXPECT_THROW(static_cast<void>(host->temporaryFile(name)), office::Failure) << name;
    }
}

TEST_F(PosixHostTest, ATextTakesItsPlaceAsAWholeForThisUserAloneAndNeverGoesThroughALink) {
    const std::string victim = folder.write("victim", "theirs");
    std::filesystem::create_symlink(victim, host->temporaryFile("page.html"));
    const std::filesystem::path file = host->writeTemporaryFile("page.html", "one");
    EXPECT_EQ(host->writeTemporaryFile("page.html", "two"), file);
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    EXPECT_EQ(text.str(), "two");
    EXPECT_EQ(folder.read("victim"), "theirs");
    EXPECT_EQ(modeOf(file), 0600U);
    const auto entries = std::filesystem::directory_iterator(file.parent_path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST_F(PosixHostTest, FoldersForOutputStandInAHomeOfAnyName) {
    const std::string home = folder.file("Frau Möller's home");
    ::setenv("HOME", home.c_str(), 1);
    const std::string made = host->outputFolder("MurvaneHTML");
    EXPECT_EQ(made, home + "/MurvaneHTML");
    EXPECT_FALSE(host->folderCanBeWrittenTo(made));
    host->makeFolder(made);
    host->makeFolder(made);
    EXPECT_TRUE(host->folderCanBeWrittenTo(made));
    host->writeFile(made + "/page.html", "x");
    EXPECT_EQ(support::failureOf([&] { host->makeFolder(made + "/page.html"); }), 75);
    EXPECT_EQ(support::failureOf([&] { host->makeFolder("/proc/none/at all"); }), 75);
    std::filesystem::create_symlink("/nowhere", made + "/link");
    EXPECT_TRUE(host->pathExists(made + "/link")) << "its name is taken";
    host->makeFolder(folder.file("kept"));
    std::filesystem::create_symlink(folder.file("kept"), made + "/other");
    host->removeFolder(made);
    EXPECT_FALSE(host->pathExists(made));
    EXPECT_TRUE(host->pathExists(folder.file("kept")));
}

TEST_F(PosixHostTest, AFileThatCantBeWrittenLeavesTheEarlierOneAndNothingBesideIt) {
    host->writeFile(folder.file("page.html"), "one");
    host->writeFile(folder.file("page.html"), "two");
    EXPECT_EQ(folder.read("page.html"), "two");
    host->makeFolder(folder.file("taken"));
    for (const std::string& path :
         {folder.file("taken"), folder.file("none/page.html"), folder.file("page.html/below"),
          folder.file(std::string(256, 'x')), std::string("/dev/full/x")}) {
        EXPECT_EQ(support::failureOf([&] { host->writeFile(path, "x"); }), 75) << path;
    }
    host->writeFile(folder.file(std::string(255, 'x')), "as long as names can be");
    // A file may grow no further than this, as on a disk that is full.
    const struct rlimit small = {.rlim_cur = 1000, .rlim_max = RLIM_INFINITY};
    const struct rlimit large = {.rlim_cur = RLIM_INFINITY, .rlim_max = RLIM_INFINITY};
    std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_EQ(support::failureOf(
                  [&] { host->writeFile(folder.file("page.html"), std::string(5000, 'x')); }),
              75);
    ::setrlimit(RLIMIT_FSIZE, &large);
    EXPECT_EQ(folder.read("page.html"), "two");
    EXPECT_EQ(folder.names(), (std::set<std::string>{"page.html", "taken", std::string(255, 'x')}));
}

TEST_F(PosixHostTest, WhatOpensAFileSaysWhetherItDid) {
    const std::string file = folder.write("a page; touch gone.html", "x");
    folder.write("xdg-open",
                 "#!/bin/sh\nprintf %s \"$1\" > \"$0.told\"\nsleep 0.3\n"
                 "[ -z \"$TOLD_OWN\" ] && exit \"$TOLD_STATUS\"\n");
    std::filesystem::permissions(folder.file("xdg-open"), std::filesystem::perms::owner_all);
    const char* const path = ::getenv("PATH");
    const std::string before = path != nullptr ? path : "";
    ::setenv("PATH", (folder.path().string() + ":" + before).c_str(), 1);
    struct WithEvents : apps::PosixHost {
        using PosixHost::PosixHost;
        void letEventsRun() override { ++events; }
        std::vector<std::string> ownVariables() const override { return {"TOLD_OWN"}; }
        int events = 0;
    } windows(console);
    ::setenv("TOLD_OWN", "ours", 1);
    for (const auto& [status, isOpened] : {std::pair("0", true), std::pair("3", false)}) {
        ::setenv("TOLD_STATUS", status, 1);
        EXPECT_EQ(windows.openFile(file), isOpened) << status;
    }
    ::unsetenv("TOLD_OWN");
    EXPECT_GT(windows.events, 5);
    EXPECT_EQ(folder.read("xdg-open.told"), file);
    EXPECT_FALSE(host->openLink("https://example.org"));
    const auto isChildLeft = [] {
        siginfo_t ignored = {};
        return ::waitid(P_ALL, 0, &ignored, WEXITED | WNOHANG | WNOWAIT) == 0;
    };
    EXPECT_FALSE(isChildLeft());
    EXPECT_FALSE(host->openFile(folder.file("none")));
    ::setenv("PATH", "/nowhere", 1);
    EXPECT_FALSE(host->openFile(file));
    ::setenv("PATH", before.c_str(), 1);
}

TEST_F(PosixHostTest, DeletingTellsAMissingFileFromOneThatStays) {
    host->deleteFile(folder.write("a", "x"));
    EXPECT_FALSE(host->fileExists(folder.file("a")));
    EXPECT_EQ(support::failureOf([&] { host->deleteFile(folder.file("a")); }), 53);
    EXPECT_EQ(support::failureOf([&] { host->deleteFile(folder.path().string()); }), 70);
}

TEST_F(PosixHostTest, SharesNoNameThatOneHasClaimed) {
    EXPECT_TRUE(apps::claim(folder.file("book.xlsx")));
    EXPECT_FALSE(apps::claim(folder.file("book.xlsx")));
    EXPECT_TRUE(apps::claim(folder.file("other.xlsx")));
}

TEST_F(PosixHostTest, AFileIsHeldByTheMarkBesideIt) {
    const std::string book = folder.write("book.xlsx", "x");
    EXPECT_FALSE(host->fileIsHeld(book));
    folder.write(".~lock.book.xlsx#", "somebody");
    EXPECT_TRUE(host->fileIsHeld(book));
    EXPECT_TRUE(host->fileIsHeld(folder.file("none.xlsx"))) << "it can't be opened";
}

TEST_F(PosixHostTest, AFileIsHeldByALockOfAnotherProcess) {
    const std::string book = folder.write("book.xlsx", "x");
    int ready[2];
    int done[2];
    ASSERT_EQ(::pipe(ready), 0);
    ASSERT_EQ(::pipe(done), 0);
    const pid_t other = ::fork();
    char letter = 0;
    if (other == 0) {
        const int file = ::open(book.c_str(), O_RDWR);
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        ::fcntl(file, F_SETLK, &lock);
        ::close(done[1]);
        static_cast<void>(::write(ready[1], "r", 1) + ::read(done[0], &letter, 1));
        ::_exit(0);
    }
    ASSERT_EQ(::read(ready[0], &letter, 1), 1);
    EXPECT_TRUE(host->fileIsHeld(book));
    ::close(done[1]);
    ::waitpid(other, nullptr, 0);
    EXPECT_FALSE(host->fileIsHeld(book));
}

}  // namespace
