#pragma once

#include <string>

#include "office/package/file_rules.h"
#include "office/table_look.h"

namespace office::package {

/// Word's tables have no more columns.
inline constexpr std::size_t mostTableColumns = 63;

/// The markup of a table (w:tbl) that looks as cells do, no wider than there is room.
[[nodiscard]] std::string wordTable(const TableLook& look, double roomPt,
                                    const MeasureText& measure);

}  // namespace office::package
