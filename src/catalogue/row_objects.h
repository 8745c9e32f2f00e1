#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "catalogue/export_choices.h"
#include "session/office_session.h"

namespace catalogue {

/// What `Visible` of a sheet says that is neither hidden nor very hidden.
constexpr std::int32_t visibleSheet = -1;

/// Looks up what the rows stand for, during one walk over them. Each sheet is asked for once: make
/// a new one for each walk, since the user may show or hide a sheet between two.
class RowObjects {
public:
    explicit RowObjects(session::OfficeSession& session) : session_(session) {}

    /// Whether the row is checked and its sheet is visible, neither hidden nor very hidden nor
    /// gone.
    [[nodiscard]] bool isOnVisibleSheet(const ExportItem& row);

    /// Whether the workbook has no sheet of the row's any more.
    [[nodiscard]] bool isSheetGone(const ExportItem& row);

    /// Whether the sheet is there and what the row stands for isn't: it was deleted or renamed
    /// since the list was kept. Only rows that the load has missed are looked up.
    [[nodiscard]] bool isItemGone(const ExportItem& row);

    /// Whether an export takes the row: checked, on a visible sheet, and not known to be gone.
    [[nodiscard]] bool isExportable(const ExportItem& row);

    /// The cells of a row that is a range: "$B$4:$H$20", several areas with commas between them.
    /// Empty for any other row, and if that can't be told.
    [[nodiscard]] const std::string& addressOf(const ExportItem& row);

    /// Whether the row is a range of several areas, which can't be exported. False if that can't be
    /// told.
    [[nodiscard]] bool isMultipleAreaRow(const ExportItem& row);

private:
    struct Sheet {
        office::Object object;
        bool isVisible = false;
    };

    const Sheet& sheetOf(const ExportItem& row);

    session::OfficeSession& session_;
    /// By collection and name.
    std::map<std::string, Sheet> sheets_;
    std::map<session::ItemIdentity, std::string> addresses_;
};

/// What holds the chart of a row on its sheet. `Failure` with the words of `chartNotFound` if the
/// sheet has no such chart.
[[nodiscard]] office::Object chartObjectOf(const session::OfficeSession& session,
                                           const ExportItem& row);
/// What there is to say where the chart of a sheet has gone.
[[nodiscard]] std::string chartNotFound(const ExportItem& row);

/// The chart of a row: of its chart sheet, or the one that lies on its sheet. LibreOffice saves a
/// chart sheet as a worksheet with a chart, which then is the row's.
[[nodiscard]] office::Object chartOf(const session::OfficeSession& session, const ExportItem& row);

/// The range that a row of a name or a table stands for: its own sheet's, or else the workbook's.
/// Nothing where it leads to none.
[[nodiscard]] office::Object rangeOf(session::OfficeSession& session, const ExportItem& row);
/// The same where there has to be one: `Failure` 1004 otherwise.
[[nodiscard]] office::Object requiredRange(session::OfficeSession& session, const ExportItem& row);
/// What there is to say where it leads to none.
[[nodiscard]] std::string rangeNotFound(const ExportItem& row);

}  // namespace catalogue
