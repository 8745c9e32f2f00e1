#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "office/model/excel/cells.h"
#include "office/table_look.h"

namespace office::model::excel {

/// A picture on a page.
struct PagePicture {
    /// As the page finds its file.
    std::string address;
    /// What it shows, for those who can't see it.
    std::string name;
    /// On the sheet.
    Box box;
};

/// Whether anything is seen of the cells.
[[nodiscard]] bool showsCells(const TableLook& look);

/// Cells as a table that looks as they do on the sheet, with the charts that lie on them: finished
/// markup. Cells that show nothing are a gap of their height.
[[nodiscard]] std::string cellsAsPage(const TableLook& look,
                                      const std::vector<PagePicture>& charts);

/// A picture by itself, in its true size.
[[nodiscard]] std::string pictureAsPage(const PagePicture& picture);

/// An item of a page around finished markup, under its title if it has one.
[[nodiscard]] std::string pageItem(std::string_view id, std::string_view title, double widthPt,
                                   std::string_view markup);

}  // namespace office::model::excel
