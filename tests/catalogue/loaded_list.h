#pragma once

#include <string>
#include <vector>

#include "catalogue/inventory.h"
#include "catalogue/save_list.h"
#include "session_doubles/test_session.h"

namespace catalogue_tests {

/// A list and what the inventory keeps beside it, loaded the way a run does.
struct LoadedList {
    catalogue::InventoryValues values;
    catalogue::ExportList list;
    catalogue::CheckAllState check1 = catalogue::CheckAllState::None;

    explicit LoadedList(session_doubles::TestSession& test) {
        catalogue::CountWorkbookItems(test.session);
        check1 = catalogue::LoadItemsToForm(test.session, values, list);
    }

    /// "Chart 1@Sales" for each row.
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const catalogue::ExportRow& row : list.rows) {
            all.push_back(row.Text + "@" + row.SubItems(1));
        }
        return all;
    }
};

inline catalogue::ExportRow row(const std::string& name, const std::string& sheet,
                                const std::string& kind, bool checked = true) {
    catalogue::ExportRow made;
    made.Text = name;
    made.Checked = checked;
    made.SubItems(1) = sheet;
    made.SubItems(5) = kind;
    made.SubItems(7) = name + sheet;
    return made;
}

}  // namespace catalogue_tests
