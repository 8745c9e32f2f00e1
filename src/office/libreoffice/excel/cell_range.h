#pragma once

#include <com/sun/star/table/XCellRange.hpp>

#include <memory>
#include <string>
#include <utility>
#include <vector>

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
    bool areHidden(model::Lines lines) override;
    void hide(model::Lines lines, bool hidden) override;
    std::vector<std::pair<std::int32_t, std::int32_t>> filledRows() override;
    office::CopiedPtr copy(office::CopySource source) override;

private:
    [[nodiscard]] const uno::Reference<css::table::XCellRange>& range();
    [[nodiscard]] uno::Reference<uno::XInterface> linesOf(model::Lines lines);
    [[nodiscard]] bool isAllShown();

    SheetRecordPtr sheet_;
    model::CellBlock block_;
    uno::Reference<css::table::XCellRange> range_;
};

}  // namespace libreoffice::excel
