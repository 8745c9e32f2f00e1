#pragma once

#include <cstddef>
#include <cstdint>

#include "catalogue/export_list.h"
#include "session/office_session.h"

/// The small helpers around the rows of the list.
namespace catalogue {

/// Writes the rank among the checked rows into column 4, and nothing for an unchecked row: the
/// running order of the export.
void RenumberIncludedRows(ExportList& list);

/// Mutes the rows that are unchecked, or have no slide number where slides are predefined, and no
/// others.
void ColorListRows(ExportList& list, bool predefinedSlides);

[[nodiscard]] std::int32_t CountCheckedRows(const ExportList& list);

/// Checked rows whose object stands on a visible sheet. A sheet that can't be found isn't visible.
[[nodiscard]] std::int32_t CountExportableRows(session::OfficeSession& session,
                                               const ExportList& list);

/// Exchanges the selected row with the one above, or below. Nothing at the end of the list or
/// without a selected row.
void MoveSelectedUp(ExportList& list);
void MoveSelectedDown(ExportList& list);

/// Sorts the rows by one column, counted from 1, always ascending; rows with equal texts keep their
/// order, and the selected row stays selected. Orders are compared as numbers, with what is no
/// number first; all else as text, slide numbers too, where "10" comes ahead of "9". What is no
/// column of the list changes nothing.
void SortByColumn(ExportList& list, std::size_t column);

}  // namespace catalogue
