#include "forms/list_view.h"

#include <algorithm>

namespace forms {

void ListView::check(std::size_t row, bool checked) {
    if (rows == nullptr || row >= rows->count() || rows->isChecked(row) == checked) return;
    rows->setChecked(row, checked);
    rowsChanged();
    if (onItemCheck) onItemCheck(row);
}

void ListView::click(std::size_t row, Pick pick) {
    if (rows == nullptr || row >= rows->count()) return;
    if (pick == Pick::Through) {
        markThrough(row);
    } else {
        if (pick == Pick::Toggle) markTheOneShown(row);
        const bool marked = pick == Pick::Only || !rows->isMarked(row);
        for (std::size_t i = 0; pick == Pick::Only && i < rows->count(); ++i) {
            rows->setMarked(i, false);
        }
        rows->setMarked(row, marked);
        anchor_ = row;
    }
    rows->select(static_cast<std::ptrdiff_t>(row));
    rowsChanged();
    if (onItemClick) onItemClick(row);
}

/// With none marked, the selected row is shown as the chosen one.
void ListView::markTheOneShown(std::size_t besides) {
    for (std::size_t i = 0; i < rows->count(); ++i) {
        if (rows->isMarked(i)) return;
    }
    const std::ptrdiff_t shown = rows->selected();
    if (shown < 0 || static_cast<std::size_t>(shown) == besides) return;
    rows->setMarked(static_cast<std::size_t>(shown), true);
}

void ListView::markThrough(std::size_t row) {
    // A row that has been moved since is no place to go on from.
    if (anchor_ >= rows->count() || !rows->isMarked(anchor_)) {
        anchor_ = static_cast<std::size_t>(std::max<std::ptrdiff_t>(rows->selected(), 0));
    }
    const auto [first, last] = std::minmax(anchor_, row);
    for (std::size_t i = 0; i < rows->count(); ++i) rows->setMarked(i, i >= first && i <= last);
}

void ListView::markAll() {
    if (rows == nullptr) return;
    for (std::size_t i = 0; i < rows->count(); ++i) rows->setMarked(i, true);
    rowsChanged();
}

}  // namespace forms
