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

}  // namespace session
