#pragma once

#include <cstdint>
#include <string>

namespace catalogue {

/// What the inventory keeps besides the counts of the session. It lives as long as the process.
struct InventoryValues {
    /// The quick count as the full walk began: the whole of the loading bar.
    std::int32_t ExpectedItems = 0;
    /// Records found so far, over all walks.
    std::int32_t LoadProgress = 0;
    /// The store held no item when it was looked at.
    bool StoreIsNew = false;
    /// The sheet that was active when that was no worksheet; otherwise empty.
    std::string StartSheetName;
    /// Rows of the store's region at A1, the marker row included.
    std::int32_t LastStoreRow = 0;
    /// The list has been filled once.
    bool ListLoaded = false;
};

}  // namespace catalogue
