#include "forms/list_view.h"

namespace forms {

void ListView::check(std::size_t row, bool checked) {
    if (rows == nullptr || row >= rows->count() || rows->isChecked(row) == checked) return;
    rows->setChecked(row, checked);
    rowsChanged();
    if (onItemCheck) onItemCheck(row);
}

void ListView::click(std::size_t row) {
    if (rows == nullptr || row >= rows->count()) return;
    rows->select(static_cast<std::ptrdiff_t>(row));
    rowsChanged();
    if (onItemClick) onItemClick(row);
}

}  // namespace forms
