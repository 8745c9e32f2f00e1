#pragma once

#include <string>
#include <string_view>

#include "catalogue/export_choices.h"

namespace unattended {

/// The items as an aligned table with a header line, for people.
[[nodiscard]] std::string listAsTable(const catalogue::ExportList& list);

/// The items as JSON, for programs:
///
///     {"workbook": "/path/book.xlsx", "items": [{"name": "Chart 1", "sheet": "Sales",
///       "kind": "Embedded", "checked": true, "missing": false, "severalAreas": false, "slide":
///       "3", "caption": ""}]}
///
/// The kinds are "Embedded", "Chart" (a chart sheet, named "{Chart Sheet}") and "Range". A range of
/// several areas can't be exported, nor what is hidden or no longer there, "missing".
[[nodiscard]] std::string listAsJson(const catalogue::ExportList& list, std::string_view workbook);

}  // namespace unattended
