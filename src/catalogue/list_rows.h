#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "catalogue/export_choices.h"
#include "session/office_session.h"

/// The small helpers around the rows of the list.
namespace catalogue {

/// Writes the rank among the checked rows into column 4, and nothing for an unchecked row: the
/// running order of the export.
void RenumberIncludedRows(ExportList& list);

/// Mutes the rows that are unchecked, that the workbook had no item for when they were read, or
/// that have no slide number where slides are predefined, and no others.
void ColorListRows(ExportList& list, bool predefinedSlides);

[[nodiscard]] std::int32_t CountCheckedRows(const ExportList& list);

/// Checked rows whose object stands on a visible sheet. A sheet that can't be found isn't visible.
[[nodiscard]] std::int32_t CountExportableRows(session::OfficeSession& session,
                                               const ExportList& list);

/// The rows that a deed of the user is for: the marked ones, or else the selected one. Indexes into
/// the list, from the top.
[[nodiscard]] std::vector<std::size_t> ChosenRows(const ExportList& list);

/// Moves each chosen row past the one above (-1) or below (1). Those that stand together at the end
/// of the list stay.
void MoveChosenRows(ExportList& list, int step);
/// Moves the chosen rows in their order to before the row that is at this index now.
void MoveChosenRowsBefore(ExportList& list, std::size_t before);

/// Sorts the rows by one column, counted from 1, always ascending; rows with equal texts keep their
/// order, and the selected row stays selected. Orders are compared as numbers, with what is no
/// number first; all else as text, slide numbers too, where "10" comes ahead of "9". What is no
/// column of the list changes nothing.
void SortByColumn(ExportList& list, std::size_t column);

}  // namespace catalogue
