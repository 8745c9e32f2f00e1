#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "catalogue/export_choices.h"
#include "office_double/suite.h"
#include "powerpoint/formats.h"
#include "session/office_session.h"
#include "session_doubles/item.h"
#include "session_doubles/recording_notices.h"
#include "session_doubles/recording_progress.h"
#include "session_doubles/scripted_host.h"
#include "support/temporary_folder.h"

namespace stage {

using catalogue::ItemKind;

inline catalogue::ExportItem chartRow(std::string_view name, std::string_view sheet,
                                      std::string_view slide = "", std::string_view caption = "",
                                      ItemKind kind = ItemKind::Chart) {
    return session_doubles::item(kind, name, sheet, caption, slide);
}

inline catalogue::ExportItem rangeRow(std::string_view name, std::string_view sheet,
                                      std::string_view caption = "") {
    return chartRow(name, sheet, "", caption, ItemKind::Range);
}

inline catalogue::ExportItem chartSheetRow(std::string_view sheet) {
    return chartRow(session::chartSheetText, sheet, "", "", ItemKind::ChartSheet);
}

/// A host whose temporary files are real, since the applications write them.
class DiskHost : public session_doubles::ScriptedHost {
public:
    DiskHost() { temporaryFolder = folder_.path().string(); }

    void deleteFile(std::string_view path) override {
        if (!deletesFiles || !std::filesystem::remove(path)) {
            throw office::Failure(office::FailureNumber::FileNotFound, "Host", "File not found");
        }
    }

    bool deletesFiles = true;

    /// Names of the files left in the temporary folder.
    [[nodiscard]] std::set<std::string> filesLeft() const { return folder_.names(); }

private:
    support::TemporaryFolder folder_;
};

/// An open workbook and an open presentation, and a list to export.
class ExportStage : public testing::Test {
protected:
    ExportStage() {
        session.ExcelApp = suite.attach("Excel.Application");
        session.ActiveBook = book.handle();
        session.PowerPointApp = suite.attach("PowerPoint.Application");
        session.SessionPresentation = deck.handle();
    }

    void add(catalogue::ExportItem taken) { list.rows.push_back(std::move(taken)); }

    /// The store with its three placement cells; an empty value leaves a cell empty.
    void storePlacement(const office::Value& top, const office::Value& width,
                        const office::Value& left) {
        auto& store = book.sheet("kukukukuZichron");
        store.value("O1", top).value("P1", width).value("R1", left);
    }

    void exportRows() {
        suite.log().clear();
        powerpoint::Batch batch{session, list, choices, {}, options};
        done = powerpoint::ExportRows(batch);
    }

    /// Names of the shapes on a slide apart from its placeholders.
    [[nodiscard]] std::vector<std::string> picturesOn(std::int32_t slide) {
        std::vector<std::string> texts;
        for (const auto& shape : deck.slide(slide).shapes()) {
            if (shape.isPicture()) texts.push_back(shape.alternativeText());
        }
        return texts;
    }

    [[nodiscard]] bool excelDraws() const {
        return session.ExcelApp.get("ScreenUpdating").toBool();
    }

    office_double::DoubleSuite suite;
    office_double::Workbook& book = suite.excel().addWorkbook("Book1.xlsx");
    office_double::Presentation& deck = suite.powerPoint().addPresentation("Deck.pptx");
    DiskHost host;
    session_doubles::RecordingNotices notices;
    session_doubles::RecordingProgress progress;
    session::OfficeSession session{suite, host, notices, progress};
    catalogue::ExportList list;
    catalogue::ExportChoices choices;
    powerpoint::SlideOptions options;
    std::int32_t done = 0;
};

}  // namespace stage
