#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace catalogue {

/// The kinds of objects, as rows and store spell them.
namespace item_kind {
inline constexpr const char* embedded = "Embedded";
inline constexpr const char* chartSheet = "Chart";
inline constexpr const char* range = "Range";
}  // namespace item_kind

/// Marks an item that the store doesn't hold yet.
inline constexpr const char* newItem = "New";

/// One exportable object as the walk through the workbook finds it.
struct ExportItem {
    std::string ItemName;
    std::string SheetName;
    std::string SlideNumber;
    std::int32_t SheetIndex = 0;
    bool Included = true;
    std::string ItemKind;
    std::string StoreState;

    /// The identity across runs: name directly followed by sheet.
    [[nodiscard]] std::string ItemKey() const { return ItemName + SheetName; }
};

/// The records of one walk, in the order found.
using ItemTable = std::vector<ExportItem>;

}  // namespace catalogue
