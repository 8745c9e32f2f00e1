#pragma once

#include <vector>

#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// The charts, pictures and shapes on a sheet, which are part of a picture of its cells but of no
/// table of them. Read when this is made, which takes calls for each of them.
class SheetDrawings {
public:
    enum class Which { All, AllButCharts };

    explicit SheetDrawings(SheetRecord& sheet, Which which = Which::All);

    /// Of cells that are drawn: a whole column is not.
    [[nodiscard]] bool lieOn(const model::CellBlock& cells) const;

private:
    SheetRecord* sheet_;
    std::vector<PlaceOfCells> places_;
};

}  // namespace libreoffice::excel
