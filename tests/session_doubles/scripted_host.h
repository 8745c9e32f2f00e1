#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "office/failure.h"
#include "session/file_names.h"
#include "session/host.h"

namespace session_doubles {

/// A machine that exists in memory. What a test wants to find stands in the public members; what
/// the program did is noted in them.
///
/// The clock stands still but for the program's own waits: `sleep` moves it by its milliseconds,
/// letting events run by none. A wait that doesn't sleep would therefore never end in a test.
class ScriptedHost : public session::Host {
public:
    struct Message {
        std::string text;
        std::string title;
        bool operator==(const Message&) const = default;
    };

    std::uint32_t now = 1000;
    std::uint32_t sleptMs = 0;
    int pumps = 0;
    /// Run at each letting of events, after it was counted.
    std::function<void()> onEvents;

    std::map<std::string, std::string, std::less<>> variables;
    std::string temporaryFolder = "/temporary";
    /// Full paths of the files that exist.
    std::set<std::string, std::less<>> files;
    std::set<std::string, std::less<>> heldFiles;
    /// What files hold, those that the program wrote and those that a test put there, by their
    /// full paths.
    std::map<std::string, std::string, std::less<>> written;
    bool hasTemporaryFolder = true;
    /// No temporary file can be written.
    bool temporaryFolderIsFull = false;

    /// The time of day never passes.
    session::LocalTime time{2026, 3, 14, 9, 26, 53};
    std::string home = "/home/user";
    std::set<std::string, std::less<>> folders;
    /// Folders in which nothing can be written or made.
    std::set<std::string, std::less<>> fullFolders;
    /// The format of each picture that was written, by its full path; its bytes are in `written`.
    std::map<std::string, session::ImageFormat, std::less<>> images;

    /// What the user answers to plain questions, chooses as a folder, and has programs for.
    bool saysYes = false;
    std::optional<std::string> chosenFolder;
    bool opensFiles = true;
    std::vector<std::string> openedFiles;

    std::vector<std::string> deletedFiles;
    std::vector<std::string> links;
    std::vector<Message> messages;

    [[nodiscard]] std::uint32_t tickCount() override { return now; }

    [[nodiscard]] session::LocalTime localTime() override { return time; }

    void sleep(std::uint32_t milliseconds) override {
        now += milliseconds;
        sleptMs += milliseconds;
    }

    void letEventsRun() override {
        ++pumps;
        if (onEvents) onEvents();
    }

    [[nodiscard]] std::optional<std::string> environment(std::string_view name) override {
        const auto found = variables.find(name);
        if (found == variables.end()) return std::nullopt;
        return found->second;
    }

    [[nodiscard]] std::string temporaryFile(std::string_view fileName) override {
        session::requireFileName(fileName);
        if (!hasTemporaryFolder) {
            throw office::Failure(office::FailureNumber::PathFileAccess, "Host", "No folder");
        }
        return temporaryFolder + "/" + std::string(fileName);
    }

    std::string writeTemporaryFile(std::string_view fileName, std::string_view text) override {
        std::string path = temporaryFile(fileName);
        if (temporaryFolderIsFull) {
            throw office::Failure(office::FailureNumber::PathFileAccess, "Host", "No room");
        }
        written[path] = text;
        files.insert(path);
        return path;
    }

    void deleteFile(std::string_view path) override {
        const auto found = files.find(path);
        if (found == files.end()) {
            throw office::Failure(office::FailureNumber::FileNotFound, "Host", "File not found");
        }
        files.erase(found);
        deletedFiles.emplace_back(path);
    }

    [[nodiscard]] bool fileExists(std::string_view path) override { return files.contains(path); }
    [[nodiscard]] std::string readFile(std::string_view path) override {
        const auto found = written.find(path);
        if (found == written.end()) {
            throw office::Failure(office::FailureNumber::FileNotFound, "Host", "File not found");
        }
        return found->second;
    }
    [[nodiscard]] std::string helpFolder() override { return "/program/help"; }
    [[nodiscard]] bool fileIsHeld(std::string_view path) override {
        return heldFiles.contains(path);
    }

    [[nodiscard]] bool pathExists(std::string_view path) override {
        return files.contains(path) || folders.contains(path);
    }

    [[nodiscard]] std::vector<std::string> namesIn(std::string_view folder) override {
        std::vector<std::string> names;
        for (const auto* const paths : {&files, &folders}) {
            for (const std::string& path : *paths)
                if (folderOf(path) == folder) names.push_back(path.substr(folder.size() + 1));
        }
        return names;
    }

    [[nodiscard]] std::string outputFolder(std::string_view name) override {
        session::requireFileName(name);
        return home + "/" + std::string(name);
    }

    void makeFolder(std::string_view path) override {
        if (files.contains(path) || fullFolders.contains(folderOf(path))) fail(path, "made");
        folders.emplace(path);
    }

    void removeFolder(std::string_view path) override {
        const std::string start = std::string(path) + "/";
        std::erase_if(files, [&](const std::string& file) { return file.starts_with(start); });
        folders.erase(std::string(path));
    }

    [[nodiscard]] std::string makeDraftFolder(std::string_view parent) override {
        makeFolder(std::string(parent) + "/draft");
        return std::string(parent) + "/draft";
    }

    void moveTo(std::string_view, std::string_view place) override { files.emplace(place); }

    [[nodiscard]] bool folderCanBeWrittenTo(std::string_view path) override {
        return folders.contains(path) && !fullFolders.contains(path);
    }

    void writeFile(std::string_view path, std::string_view text) override {
        const bool isPlace = folders.contains(folderOf(path)) && !folders.contains(path);
        if (!isPlace || fullFolders.contains(folderOf(path))) fail(path, "written");
        written[std::string(path)] = text;
        files.emplace(path);
    }

    void writeImage(std::string_view png, session::ImageFormat format,
                    std::string_view path) override {
        writeFile(path, png);
        images[std::string(path)] = format;
    }

    /// Letters as wide as half their height.
    [[nodiscard]] office::Size textSize(std::string_view text, const office::Font& font,
                                        std::optional<double> widthPt) override {
        const double inOneLine = static_cast<double>(text.size()) * font.sizePt * 0.5;
        return {widthPt.value_or(inOneLine), font.sizePt * 1.2};
    }

    bool openLink(std::string_view address) override {
        links.emplace_back(address);
        return opensFiles;
    }
    bool openFile(std::string_view path) override {
        openedFiles.emplace_back(path);
        return opensFiles;
    }
    [[nodiscard]] std::optional<std::string> chooseFolder(std::string_view,
                                                          std::string_view) override {
        return chosenFolder;
    }
    [[nodiscard]] std::optional<bool> ask(std::string_view text, std::string_view title) override {
        messageBox(text, title);
        return saysYes;
    }
    void messageBox(std::string_view text, std::string_view title) override {
        messages.push_back({std::string(text), std::string(title)});
    }

private:
    [[nodiscard]] static std::string_view folderOf(std::string_view path) {
        return path.substr(0, path.rfind('/'));
    }

    [[noreturn]] static void fail(std::string_view path, const char* what) {
        throw office::Failure(office::FailureNumber::PathFileAccess, "Host",
                              std::string(path) + " can't be " + what + ": No room");
    }
};

}  // namespace session_doubles
