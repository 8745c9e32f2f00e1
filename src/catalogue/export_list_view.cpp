#include "catalogue/export_list_view.h"

namespace catalogue {

std::string_view ExportListView::text(std::size_t row, std::size_t column) const {
    const ExportRow& shown = list_.rows.at(row);
    return column == 0 ? shown.Text : shown.SubItems(column);
}

forms::Colour ExportListView::textColour(std::size_t row) const {
    return forms::Colour::bgr(list_.rows.at(row).ForeColor);
}

std::string_view ExportListView::icon(std::size_t row) const {
    switch (list_.rows.at(row).SmallIcon) {
        case 1:
            return "icon:chart-sheet";
        case 3:
            return "icon:chart";
        default:
            return "icon:range";
    }
}

}  // namespace catalogue
