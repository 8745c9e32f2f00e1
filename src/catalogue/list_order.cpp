#include "catalogue/list_order.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "office/text.h"

namespace catalogue {

namespace {

const std::string& cellOf(const ExportRow& row, std::size_t column) {
    return column == 1 ? row.Text : row.SubItems(column - 1);
}

void exchangeSelectedWith(ExportList& list, std::ptrdiff_t other) {
    const auto last = static_cast<std::ptrdiff_t>(list.rows.size()) - 1;
    if (list.selected < 0 || list.selected > last || other < 0 || other > last) return;
    std::swap(list.rows[static_cast<std::size_t>(list.selected)],
              list.rows[static_cast<std::size_t>(other)]);
    list.selected = other;
}

/// Sorts an order of rows by a key that is made once for each row.
template <class Key, class MakeKey>
std::vector<std::size_t> orderBy(const ExportList& list, MakeKey makeKey) {
    std::vector<Key> keys;
    keys.reserve(list.rows.size());
    for (const ExportRow& row : list.rows) keys.push_back(makeKey(row));
    std::vector<std::size_t> order(list.rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    return order;
}

std::vector<std::size_t> orderFor(const ExportList& list, std::size_t column,
                                  std::string_view sortType) {
    if (office::sameIgnoringCase(sortType, "NUMBER")) {
        // An empty optional is less than any number: what is no number comes first.
        return orderBy<std::optional<double>>(
            list, [&](const ExportRow& row) { return office::numberOf(cellOf(row, column)); });
    }
    return orderBy<std::string>(
        list, [&](const ExportRow& row) { return office::lowerCase(cellOf(row, column)); });
}

}  // namespace

void moveSelectedUp(ExportList& list) {
    exchangeSelectedWith(list, list.selected - 1);
}

void moveSelectedDown(ExportList& list) {
    exchangeSelectedWith(list, list.selected + 1);
}

std::string_view sortTypeOfColumn(std::size_t column) {
    // Column 3, the slide number, is sorted as text: "10" comes ahead of "9".
    static constexpr std::array<std::string_view, 8> types = {
        "STRING", "STRING", "STRING", "NUMBER", "STRING", "STRING", "NUMBER", "NUMBER"};
    return column >= 1 && column <= types.size() ? types.at(column - 1) : std::string_view();
}

void SotrListView(ExportList& list, std::size_t column, std::string_view sortType) {
    if (column < 1 || column > ExportList::columnCount()) return;
    const std::vector<std::size_t> order = orderFor(list, column, sortType);
    std::vector<ExportRow> sorted;
    sorted.reserve(order.size());
    std::ptrdiff_t selected = -1;
    for (const std::size_t from : order) {
        if (static_cast<std::ptrdiff_t>(from) == list.selected) {
            selected = static_cast<std::ptrdiff_t>(sorted.size());
        }
        sorted.push_back(std::move(list.rows[from]));
    }
    list.rows = std::move(sorted);
    list.selected = selected;
}

}  // namespace catalogue
