#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace session {

/// What an item is in its workbook.
enum class ItemKind { Chart, ChartSheet, Range };

/// The name of every chart sheet's item; the chart sheet's own name is the item's `sheet`.
inline constexpr std::string_view chartSheetText = "{Chart Sheet}";

/// Kind, name and sheet of an item.
using ItemIdentity = std::tuple<ItemKind, std::string, std::string>;

/// One exportable object of a workbook with what the user has decided about it. The inventory finds
/// it, the store keeps it, the list shows it, and the exports read it.
struct ExportItem {
    std::string name;  ///< of the object, or `chartSheetText`
    std::string sheet;
    std::string slideNumber;  ///< as typed; empty: none
    /// The rank among the checked items, empty for others. Until the list is numbered for the first
    /// time, the position of the item's sheet.
    std::string order;
    std::string caption;
    /// The number of the store's row below which the item was added; empty for the items that the
    /// store began with.
    std::string laterRow;
    ItemKind kind = ItemKind::Range;
    bool checked = true;
    /// A range of several areas: it can't be exported and may not be checked.
    bool hasSeveralAreas = false;
    /// Known from the store alone: the workbook has lost it, or it is on a hidden sheet.
    bool isMissing = false;
    /// Shown in grey: the item lacks something, or isn't checked.
    bool isMuted = false;
    /// One of the rows that are chosen for a common deed.
    bool isMarked = false;

    /// What makes it the same item from run to run.
    [[nodiscard]] ItemIdentity identity() const { return {kind, name, sheet}; }
    /// What the user decides about it and the store keeps, but for its place in the list.
    [[nodiscard]] auto decisions() const {
        return std::tuple(identity(), checked, slideNumber, caption);
    }
    /// What the store notes of that; the other columns hold the rest.
    [[nodiscard]] std::string key() const { return name + sheet; }
    bool operator==(const ExportItem&) const = default;
    [[nodiscard]] bool isChartSheet() const { return kind == ItemKind::ChartSheet; }
    [[nodiscard]] bool isEmbeddedChart() const { return kind == ItemKind::Chart; }
    [[nodiscard]] bool isRange() const { return kind == ItemKind::Range; }
    /// What messages call it.
    [[nodiscard]] const std::string& shownName() const { return isChartSheet() ? sheet : name; }
};

/// "Embedded", "Chart" or "Range", as the store spells the kinds.
[[nodiscard]] std::string_view kindText(ItemKind kind);

/// A sheet-level name, "Sales!Total" or "'Net sales'!Total", without its sheet; any other as it
/// stands.
[[nodiscard]] std::string_view nameWithoutSheet(std::string_view name);

/// The items in display order, which is the order of export and of the store.
struct ExportList {
    std::vector<ExportItem> rows;
    /// Index into `rows` of the selected row, or -1.
    std::ptrdiff_t selected = -1;
    /// The rows are those of a workbook, all of them. Any other list is never stored.
    bool isLoaded = false;
};

}  // namespace session
