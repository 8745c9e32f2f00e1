#include "catalogue/list_rows.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/list_columns.h"
#include "catalogue/row_objects.h"
#include "office/text.h"

namespace catalogue {

namespace {

void exchangeSelectedWith(ExportList& list, std::ptrdiff_t other) {
    const auto last = static_cast<std::ptrdiff_t>(list.rows.size()) - 1;
    if (list.selected < 0 || list.selected > last || other < 0 || other > last) return;
    std::swap(list.rows[static_cast<std::size_t>(list.selected)],
              list.rows[static_cast<std::size_t>(other)]);
    list.selected = other;
}

/// The order of rows by a key that is made once for each.
template <class Key, class MakeKey>
std::vector<std::size_t> orderBy(const ExportList& list, MakeKey makeKey) {
    std::vector<Key> keys;
    keys.reserve(list.rows.size());
    for (const ExportItem& row : list.rows) keys.push_back(makeKey(row));
    std::vector<std::size_t> order(list.rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    return order;
}

std::vector<std::size_t> orderFor(const ExportList& list, std::size_t column) {
    if (column == ListColumn::order || column == ListColumn::laterRow) {
        // An empty optional is less than any number: what is no number comes first.
        return orderBy<std::optional<double>>(
            list, [&](const ExportItem& row) { return office::numberOf(cellText(row, column)); });
    }
    return orderBy<std::string>(
        list, [&](const ExportItem& row) { return office::sortKey(cellText(row, column)); });
}

}  // namespace

void RenumberIncludedRows(ExportList& list) {
    std::int32_t rank = 0;
    for (ExportItem& row : list.rows) {
        row.order = row.checked ? std::to_string(++rank) : std::string();
    }
}

void ColorListRows(ExportList& list, bool predefinedSlides) {
    for (ExportItem& row : list.rows) {
        const bool lacksNumber = predefinedSlides && office::trim(row.slideNumber).empty();
        row.isMuted = !row.checked || lacksNumber;
    }
}

std::int32_t CountCheckedRows(const ExportList& list) {
    return static_cast<std::int32_t>(std::count_if(
        list.rows.begin(), list.rows.end(), [](const ExportItem& row) { return row.checked; }));
}

std::int32_t CountExportableRows(session::OfficeSession& session, const ExportList& list) {
    RowObjects objects(session);
    return static_cast<std::int32_t>(
        std::count_if(list.rows.begin(), list.rows.end(),
                      [&](const ExportItem& row) { return objects.isOnVisibleSheet(row); }));
}

void MoveSelectedUp(ExportList& list) {
    exchangeSelectedWith(list, list.selected - 1);
}

void MoveSelectedDown(ExportList& list) {
    exchangeSelectedWith(list, list.selected + 1);
}

void SortByColumn(ExportList& list, std::size_t column) {
    std::vector<ExportItem> sorted;
    sorted.reserve(list.rows.size());
    std::ptrdiff_t selected = -1;
    for (const std::size_t from : orderFor(list, column)) {
        if (static_cast<std::ptrdiff_t>(from) == list.selected) {
            selected = static_cast<std::ptrdiff_t>(sorted.size());
        }
        sorted.push_back(std::move(list.rows[from]));
    }
    list.rows = std::move(sorted);
    list.selected = selected;
}

}  // namespace catalogue
