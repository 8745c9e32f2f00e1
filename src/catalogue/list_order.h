#pragma once

#include <cstddef>
#include <string_view>

#include "catalogue/export_list.h"

/// The order of the rows, which is the order of export. The selected row stays the selected one.
namespace catalogue {

/// Exchanges the selected row with the one above, or below. Nothing at the end of the list or
/// without a selected row.
void moveSelectedUp(ExportList& list);
void moveSelectedDown(ExportList& list);

/// The sort type that a click on a column passes on; columns count from 1. It is a table of its
/// own: what the headers carry as their type does not count. Empty for a column that isn't there.
[[nodiscard]] std::string_view sortTypeOfColumn(std::size_t column);

/// Sorts by one column, always ascending; rows with equal keys keep their order. Type "NUMBER":
/// what is no number first, then by value; any other: as text, case aside.
void SotrListView(ExportList& list, std::size_t column, std::string_view sortType);

}  // namespace catalogue
