#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "office/libreoffice/excel/cell_styles.h"
#include "office/libreoffice/excel/sheet_record.h"
#include "office/table_look.h"

namespace libreoffice::excel {

/// What conditional formats change about a cell: the colours are 0xBBGGRR, nothing is no ground and
/// the automatic colour of letters.
struct CellDress {
    std::optional<std::int32_t> fill;
    std::optional<std::int32_t> fontColour;
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckOut = false;
};

/// What a cell's own format says of that.
[[nodiscard]] CellDress dressIn(const NamedValues& format);

/// All of it but the colour of letters.
void takeDress(office::CellLook& look, const CellDress& dress);

/// What a style says of that; nothing where it leaves it to the cell.
struct StyleMarks {
    /// No colour is none, or the automatic one of letters.
    using Colour = std::optional<std::int32_t>;
    std::optional<Colour> fill, fontColour;
    std::optional<bool> isBold, isItalic, isUnderlined, isStruckOut;

    /// So many things that a cell could be known by. Which colour the automatic one is, is not said
    /// here.
    [[nodiscard]] int count() const;
    [[nodiscard]] bool areOn(const CellDress& cell) const;
    /// Whether a cell with this dress of its own looks so beneath the style.
    [[nodiscard]] bool make(const CellDress& seen, const CellDress& own) const;
};

/// What tells where a style of conditional formats is.
struct StyleFacts {
    CellStyle style;
    StyleMarks marks;
    /// A copy makes each style do so.
    bool takesAfterParent;
    /// Whether it changes more about a cell than its marks.
    bool saysMore;
};
[[nodiscard]] StyleFacts styleFactsOf(const uno::Reference<css::frame::XModel>& book,
                                      const CellStyle& style);

/// The cells of a block as their own formats dress them, without any condition.
class OwnDress {
public:
    OwnDress(const SheetRecord& sheet, const model::CellBlock& block);

    [[nodiscard]] const CellDress& at(std::int32_t column, std::int32_t row) const;

private:
    model::CellBlock block_;
    std::vector<CellDress> dresses_;
    /// The places of those, row by row.
    std::vector<std::uint32_t> places_;
};

}  // namespace libreoffice::excel
