#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "apps/posix_host.h"
#include "apps/scripted_console.h"
#include "destinations/row_walk.h"
#include "office_double/suite.h"
#include "session/office_session.h"
#include "session_doubles/item.h"
#include "session_doubles/recording_notices.h"
#include "session_doubles/recording_progress.h"
#include "support/automation.h"
#include "support/temporary_folder.h"

namespace stage {

using catalogue::ItemKind;

/// This machine with a home of the test's own, and a user who answers by script.
class HostWithHome : public apps::PosixHost {
public:
    HostWithHome() : PosixHost(console_) {}

    [[nodiscard]] std::string outputFolder(std::string_view name) override {
        return home.file(name);
    }
    bool openFile(std::string_view path) override {
        opened.emplace_back(path);
        return opensFiles;
    }
    [[nodiscard]] std::optional<bool> ask(std::string_view text, std::string_view) override {
        boxes.emplace_back(text);
        return saysYes;
    }
    [[nodiscard]] std::optional<std::string> chooseFolder(std::string_view,
                                                          std::string_view) override {
        return chosenFolder;
    }
    void messageBox(std::string_view text, std::string_view) override { boxes.emplace_back(text); }

    support::TemporaryFolder home;
    std::vector<std::string> opened;
    std::vector<std::string> boxes;
    std::optional<std::string> chosenFolder;
    bool opensFiles = true;
    std::optional<bool> saysYes = false;

private:
    ScriptedConsole console_;
};

/// An open workbook and a list of what is to go to files.
class FilesStage : public testing::Test {
protected:
    FilesStage() {
        session.ExcelApp = suite.attach("Excel.Application");
        session.ActiveBook = book.handle();
    }

    catalogue::ExportItem& add(ItemKind kind, const std::string& name, const std::string& sheet,
                               const std::string& caption = "") {
        const bool isSheet = kind == ItemKind::ChartSheet;
        return list.rows.emplace_back(session_doubles::item(
            kind, isSheet ? session::chartSheetText : name.c_str(), sheet, caption));
    }
    /// A chart that the workbook has.
    void addChart(const std::string& name, const std::string& sheet,
                  const std::string& caption = "") {
        book.sheet(sheet).chart(name);
        add(ItemKind::Chart, name, sheet, caption);
    }

    /// Going on after items that fail, whose names and reasons are noted.
    destinations::RowBatch batch() {
        return {session, list, [this](const auto& row, const office::Failure& failure) {
                    failed.push_back(row.name);
                    reasons.push_back(failure.description());
                }};
    }

    /// The files in a folder of the home and below it, by their paths from there.
    [[nodiscard]] std::vector<std::string> filesIn(const char* folder) const {
        const std::filesystem::path root = host.home.file(folder);
        std::vector<std::string> names;
        if (!std::filesystem::exists(root)) return names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
            names.push_back(std::filesystem::relative(entry.path(), root).string());
        std::sort(names.begin(), names.end());
        return names;
    }

    office_double::DoubleSuite suite;
    office_double::Workbook& book = suite.excel().addWorkbook("Book & 1.xlsx");
    HostWithHome host;
    session_doubles::RecordingNotices notices;
    session_doubles::RecordingProgress progress;
    session::OfficeSession session{suite, host, notices, progress};
    catalogue::ExportList list;
    std::vector<std::string> failed;
    std::vector<std::string> reasons;
};

using Names = std::vector<std::string>;

}  // namespace stage
