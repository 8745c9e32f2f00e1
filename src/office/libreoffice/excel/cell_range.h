#pragma once

#include <com/sun/star/table/XCellRange.hpp>

#include <memory>
#include <string>
#include <utility>

#include "office/libreoffice/excel/sheet_record.h"
#include "office/model/excel/cells.h"

namespace libreoffice::excel {

/// One block of cells; fetched once.
class CellRange : public model::Cells {
public:
    CellRange(SheetRecordPtr sheet, const model::CellBlock& block)
        : sheet_(std::move(sheet)),
          block_(block) {}

    office::Table read() override;
    void write(const office::Table& values) override;
    void clear() override;
    std::string numberFormat() override;
    void setNumberFormat(const std::string& code) override;

    model::Box place() override;
    bool areBlank() override;
    office::CopiedPtr copy(office::CopySource source) override;

private:
    [[nodiscard]] const uno::Reference<css::table::XCellRange>& range();

    SheetRecordPtr sheet_;
    model::CellBlock block_;
    uno::Reference<css::table::XCellRange> range_;
};

}  // namespace libreoffice::excel
