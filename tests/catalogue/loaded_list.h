#pragma once

#include <string>
#include <vector>

#include "catalogue/inventory.h"
#include "session_doubles/item.h"
#include "session_doubles/test_session.h"

namespace catalogue_tests {

using catalogue::ItemKind;

/// A list, loaded the way a run does.
struct LoadedList {
    catalogue::ExportList list;
    catalogue::CheckAllState check1 = catalogue::CheckAllState::None;

    explicit LoadedList(session_doubles::TestSession& test) {
        catalogue::CountWorkbookItems(test.session);
        check1 = catalogue::LoadItemsToForm(test.session, list);
    }

    /// "Chart 1@Sales" for each row.
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const catalogue::ExportItem& row : list.rows) {
            all.push_back(row.name + "@" + row.sheet);
        }
        return all;
    }
};

inline catalogue::ExportItem row(const std::string& name, const std::string& sheet, ItemKind kind,
                                 bool checked = true) {
    catalogue::ExportItem made = session_doubles::item(kind, name, sheet);
    made.checked = checked;
    return made;
}

}  // namespace catalogue_tests
