#pragma once

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XSpreadsheets.hpp>

#include <string>
#include <string_view>
#include <vector>

#include "office/libreoffice/excel/sheet_record.h"
#include "office/libreoffice/excel/workbook_facts.h"

namespace libreoffice::excel {

/// The sheets of a workbook in the order of their tabs, with what its file says about them. The
/// facts of the file hold for the sheets that bear the names at the first look; from then on they
/// follow the sheet.
class SheetList {
public:
    enum class Kind { Any, Worksheet, ChartSheet };

    SheetList(uno::Reference<css::sheet::XSpreadsheets> sheets, const WorkbookFacts& facts);

    /// Reads the order and the kinds anew.
    [[nodiscard]] std::vector<SheetPtr> all(Kind kind = Kind::Any);
    [[nodiscard]] std::int32_t count();
    /// Null if there is none of that name or place (from 0).
    [[nodiscard]] SheetPtr find(std::string_view name);
    [[nodiscard]] SheetPtr at(std::int32_t place);

    /// `office::Failure` Disconnected if the sheet has been deleted. Asked before a sheet is
    /// changed.
    void requireThere(const SheetPtr& sheet, const std::string& source);

    /// A new worksheet at a place from 0, with the first free name "Sheet1", "Sheet2", ...
    SheetPtr add(std::int32_t place);
    void remove(const SheetPtr& sheet);

    /// Without the file's word: takes sheets that look like chart sheets for such.
    void tellKindsByLooks();

private:
    [[nodiscard]] std::vector<std::string> readNames();
    [[nodiscard]] SheetPtr recordFor(const std::string& name);
    void followNames(const std::vector<std::string>& names);

    uno::Reference<css::sheet::XSpreadsheets> sheets_;
    uno::Reference<css::container::XIndexAccess> byPlace_;
    std::vector<SheetPtr> records_;
    std::vector<std::string> namesSeen_;
};

}  // namespace libreoffice::excel
