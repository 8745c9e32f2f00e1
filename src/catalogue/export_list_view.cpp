#include "catalogue/export_list_view.h"

#include "catalogue/list_columns.h"

namespace catalogue {

std::string_view ExportListView::text(std::size_t row, std::size_t column) const {
    return cellText(list_.rows.at(row), column + 1);
}

forms::Colour ExportListView::textColour(std::size_t row) const {
    const ExportItem& shown = list_.rows.at(row);
    if (shown.hasSeveralAreas) return row_colour::refused;
    return shown.isMuted ? row_colour::muted : row_colour::ready;
}

std::string_view ExportListView::icon(std::size_t row) const {
    switch (list_.rows.at(row).kind) {
        case ItemKind::ChartSheet:
            return "icon:chart-sheet";
        case ItemKind::Chart:
            return "icon:chart";
        default:
            return "icon:range";
    }
}

}  // namespace catalogue
