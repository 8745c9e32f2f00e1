#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/export_choices.h"

/// Which rows of the list an order to work means. Items are named as `NAME` or `NAME@SHEET`; a
/// chart sheet has its sheet's name or "{Chart Sheet}". Exact names go before names that differ in
/// case alone.
namespace unattended {

/// The name that a user knows the row's object by: the object's, or the chart sheet's.
[[nodiscard]] const std::string& itemName(const catalogue::ExportItem& row);

/// The index of the row with this name, on this sheet unless `sheet` is empty. `UsageError` with
/// near names if there is none, with the candidates if there are several.
[[nodiscard]] std::size_t findItem(const catalogue::ExportList& list, std::string_view name,
                                   std::string_view sheet);

/// The indices of the rows that the texts of an option mean, each once, in their order. A text is
/// one item or several separated by commas; double quotes keep a comma in a name. "{Chart Sheet}"
/// alone means all chart sheets. `UsageError` as for `findItem`.
[[nodiscard]] std::vector<std::size_t> findItems(const catalogue::ExportList& list,
                                                 const std::vector<std::string>& texts);

/// Checks these rows and no others.
void checkOnly(catalogue::ExportList& list, const std::vector<std::size_t>& indices);

/// Checks every row that can be exported.
void checkAll(catalogue::ExportList& list);

/// Moves these rows to the top, in this order; the others follow in theirs.
void moveToTop(catalogue::ExportList& list, const std::vector<std::size_t>& indices);

}  // namespace unattended
