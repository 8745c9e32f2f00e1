#include "session/export_list.h"

namespace session {

std::string_view kindText(ItemKind kind) {
    switch (kind) {
        case ItemKind::Chart:
            return "Embedded";
        case ItemKind::ChartSheet:
            return "Chart";
        default:
            return "Range";
    }
}

std::string_view nameWithoutSheet(std::string_view name) {
    const std::size_t mark = name.rfind('!');
    return mark == std::string_view::npos ? name : name.substr(mark + 1);
}

}  // namespace session
