#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "office/libreoffice/excel/cell_conditions.h"
#include "office/libreoffice/excel/sheet_record.h"
#include "office/table_look.h"

namespace libreoffice::excel {

/// The conditional formats, among some of a sheet's, that draw bars.
class DataBars {
public:
    DataBars(SheetRecord& sheet, const std::vector<CellCondition>& conditions);

    /// The bar of a cell with this number, by its place on the sheet.
    [[nodiscard]] std::optional<office::CellBar> barOf(std::int32_t column, std::int32_t row,
                                                       double number) const;

private:
    enum class Axis { None, Middle, Automatic };
    struct Bars {
        std::vector<model::CellBlock> blocks;
        double least = 0;
        double most = 0;
        Axis axis = Axis::None;
        bool isFading = false;
        bool isAlone = false;
        std::int32_t colour = 0;
        std::int32_t negativeColour = 0;
    };

    [[nodiscard]] static office::CellBar lookOf(const Bars& bars, double number);
    static std::optional<Bars> barsOf(SheetRecord& sheet,
                                      const uno::Reference<css::beans::XPropertySet>& entry,
                                      const std::vector<model::CellBlock>& blocks);

    std::vector<Bars> all_;
};

}  // namespace libreoffice::excel
