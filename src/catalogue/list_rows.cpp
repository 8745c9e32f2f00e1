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

using Order = std::vector<std::size_t>;

Order presentOrder(const ExportList& list) {
    Order order(list.rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
}

/// Puts the rows into an order of their present indexes. The selected row stays the selected one.
void reorder(ExportList& list, const Order& order) {
    std::vector<ExportItem> rows;
    rows.reserve(order.size());
    std::ptrdiff_t selected = -1;
    for (const std::size_t from : order) {
        if (static_cast<std::ptrdiff_t>(from) == list.selected) {
            selected = static_cast<std::ptrdiff_t>(rows.size());
        }
        rows.push_back(std::move(list.rows[from]));
    }
    list.rows = std::move(rows);
    list.selected = selected;
}

/// The order of rows by a key that is made once for each.
template <class Key, class MakeKey>
Order orderBy(const ExportList& list, MakeKey makeKey) {
    std::vector<Key> keys;
    keys.reserve(list.rows.size());
    for (const ExportItem& row : list.rows) keys.push_back(makeKey(row));
    Order order = presentOrder(list);
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    return order;
}

Order orderFor(const ExportList& list, std::size_t column) {
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
        row.isMuted = !row.checked || row.isMissing || lacksNumber;
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
                      [&](const ExportItem& row) { return objects.isExportable(row); }));
}

std::vector<std::size_t> ChosenRows(const ExportList& list) {
    std::vector<std::size_t> chosen;
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        if (list.rows[i].isMarked) chosen.push_back(i);
    }
    const auto count = static_cast<std::ptrdiff_t>(list.rows.size());
    if (chosen.empty() && list.selected >= 0 && list.selected < count) {
        chosen.push_back(static_cast<std::size_t>(list.selected));
    }
    return chosen;
}

void MoveChosenRows(ExportList& list, int step) {
    std::vector<std::size_t> chosen = ChosenRows(list);
    Order order = presentOrder(list);
    // The one that goes ahead of the others makes room for the next.
    if (step > 0) std::reverse(chosen.begin(), chosen.end());
    std::size_t end = step > 0 ? order.size() - 1 : 0;
    for (const std::size_t row : chosen) {
        if (row == end) {
            end = step > 0 ? end - 1 : end + 1;
        } else {
            std::swap(order[row], order[step > 0 ? row + 1 : row - 1]);
        }
    }
    reorder(list, order);
}

void MoveChosenRowsBefore(ExportList& list, std::size_t before) {
    const std::vector<std::size_t> chosen = ChosenRows(list);
    before = std::min(before, list.rows.size());
    const auto isChosen = [&](std::size_t row) {
        return std::binary_search(chosen.begin(), chosen.end(), row);
    };
    Order order = presentOrder(list);
    const auto place = order.begin() + static_cast<std::ptrdiff_t>(before);
    std::stable_partition(order.begin(), place, [&](std::size_t row) { return !isChosen(row); });
    std::stable_partition(place, order.end(), isChosen);
    reorder(list, order);
}

void SortByColumn(ExportList& list, std::size_t column) {
    reorder(list, orderFor(list, column));
}

}  // namespace catalogue
