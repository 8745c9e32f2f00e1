#pragma once

#include <cstdint>
#include <string>

#include "catalogue/export_list.h"
#include "session/office_session.h"

/// The small helpers around the rows of the list.
namespace catalogue {

/// Writes the rank among the checked rows into column 4, and nothing for an unchecked row: the
/// running order of the export.
void RenumberIncludedRows(ExportList& list);

/// Recolours every row but the red ones: muted if it is unchecked, or if it has no slide number
/// where slides are predefined.
void ColorListRows(ExportList& list, bool predefinedSlides);

[[nodiscard]] std::int32_t CountCheckedRows(const ExportList& list);

/// Checked rows whose object stands on a visible sheet. A sheet that can't be found isn't visible.
[[nodiscard]] std::int32_t CountExportableRows(session::OfficeSession& session,
                                               const ExportList& list);

/// The same for one row.
[[nodiscard]] bool RowOnVisibleSheet(session::OfficeSession& session, const ExportRow& row);

/// What `CopyListToClipboard` copies: headers and rows, columns joined by tabs, each line ended by
/// CR LF and one more at the end.
[[nodiscard]] std::string listAsTabText(const ExportList& list);

}  // namespace catalogue
