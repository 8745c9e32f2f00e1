#pragma once

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
    SheetList(CalcDocument& book, uno::Reference<css::sheet::XSpreadsheets> sheets,
              const WorkbookFacts& facts);

    /// Reads the order and the kinds anew.
    [[nodiscard]] std::vector<SheetRecordPtr> all();
    [[nodiscard]] std::vector<std::string> names();
    /// Null if there is none of that name or place (from 0).
    [[nodiscard]] SheetRecordPtr find(std::string_view name);
    [[nodiscard]] SheetRecordPtr at(std::int32_t place);

    /// Whether a sheet is still in the workbook. Asked before it is changed.
    [[nodiscard]] bool isThere(SheetRecord& sheet);

    SheetRecordPtr add(const std::string& name, std::int32_t place);
    void remove(const model::SheetPtr& sheet);

    /// Without the file's word: takes sheets that look like chart sheets for such.
    void tellKindsByLooks();

private:
    [[nodiscard]] SheetRecordPtr recordFor(const std::string& name);
    void followNames(const std::vector<std::string>& names);

    CalcDocument& book_;
    uno::Reference<css::sheet::XSpreadsheets> sheets_;
    std::vector<SheetRecordPtr> records_;
    std::vector<std::string> namesSeen_;
};

}  // namespace libreoffice::excel
