#pragma once

#include <vector>

#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// The smallest block around another that cuts through no array formula.
[[nodiscard]] model::CellBlock withWholeArrays(const SheetRecord& sheet,
                                               const model::CellBlock& block);

/// Hides for a moment what is shown of a block's rows and columns beyond an inner one. The suite
/// copies no part of an array formula, but it leaves out what is hidden of a whole one.
class HiddenAround {
public:
    HiddenAround(SheetRecord& sheet, const model::CellBlock& inner, const model::CellBlock& outer);
    HiddenAround(const HiddenAround&) = delete;
    HiddenAround& operator=(const HiddenAround&) = delete;
    ~HiddenAround();

    /// False where the suite hides nothing.
    [[nodiscard]] bool isHidden() const { return isHidden_; }

private:
    explicit HiddenAround(SheetRecord& sheet)
        : sheet_(sheet),
          unheard_(sheet.book()),
          flag_(sheet.book()) {}
    void hide(const model::CellBlock& strip, bool asColumns);

    SheetRecord& sheet_;
    UnheardByLooks unheard_;
    KeptModifiedFlag flag_;
    /// Rows and columns.
    std::vector<uno::Reference<uno::XInterface>> hidden_;
    bool isHidden_ = true;
};

}  // namespace libreoffice::excel
