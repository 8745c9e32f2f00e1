#include "office/libreoffice/excel/held_styles.h"

#include <com/sun/star/awt/FontSlant.hpp>
#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/beans/XMultiPropertySet.hpp>

#include <algorithm>
#include <optional>
#include <utility>

#include "office/libreoffice/excel/book_looks.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/cell_styles.h"
#include "office/libreoffice/excel/formula_reach.h"

namespace libreoffice::excel {

namespace {

using model::CellBlock;

/// What a style says of what the page tells of cells; nothing where it leaves that to the cell.
struct StyleMarks {
    /// No colour is none, or the automatic one of letters.
    using Colour = std::optional<std::int32_t>;
    std::optional<Colour> fill, fontColour;
    std::optional<bool> isBold, isItalic, isStruckOut, isUnderlined;

    /// Whether there is anything that a cell could be known by. Which colour the automatic one is,
    /// is not said here.
    [[nodiscard]] bool areSeen() const {
        return fill || (fontColour && *fontColour) || isBold || isItalic || isStruckOut ||
               isUnderlined;
    }
    [[nodiscard]] bool areOn(const CellDress& cell) const {
        const auto fits = [](const auto& mark, const auto& seen) { return !mark || *mark == seen; };
        const bool fitsInk = !fontColour || !*fontColour || *fontColour == cell.fontColour;
        return fits(fill, cell.fill) && fitsInk && fits(isBold, cell.isBold) &&
               fits(isItalic, cell.isItalic) && fits(isStruckOut, cell.isStruckOut) &&
               fits(isUnderlined, cell.isUnderlined);
    }
};

StyleMarks marksOf(const uno::Reference<css::beans::XMultiPropertyStates>& style) {
    const auto names = namesOf({"CellBackColor", "CharColor", "CharPosture", "CharStrikeout",
                                "CharUnderline", "CharWeight"});
    const auto states = style->getPropertyStates(names);
    const auto values = as<css::beans::XMultiPropertySet>(style)->getPropertyValues(names);
    const auto read = [&](sal_Int32 place, auto otherwise, auto convert) {
        std::optional<decltype(convert(otherwise))> mark;
        if (states[place] == css::beans::PropertyState_DIRECT_VALUE &&
            (values[place] >>= otherwise))
            mark = convert(otherwise);
        return mark;
    };
    const auto colour = [](sal_Int32 value) {
        return value < 0 ? StyleMarks::Colour() : swapRedAndBlue(value);
    };
    const auto isSet = [](sal_Int16 line) { return line != 0; };
    const auto leans = [](css::awt::FontSlant slant) { return slant != css::awt::FontSlant_NONE; };
    const auto isHeavy = [](float weight) { return weight > css::awt::FontWeight::NORMAL; };
    StyleMarks marks;
    marks.fill = read(0, sal_Int32{}, colour);
    marks.fontColour = read(1, sal_Int32{}, colour);
    marks.isItalic = read(2, css::awt::FontSlant_NONE, leans);
    marks.isStruckOut = read(3, sal_Int16{}, isSet);
    marks.isUnderlined = read(4, sal_Int16{}, isSet);
    marks.isBold = read(5, float{}, isHeavy);
    return marks;
}

struct SeenStyle {
    HeldStyle style;
    StyleMarks marks;
    /// Whether the page shows where it is, on all the cells that it could be on.
    bool isTold = true;
};

/// Where in a block a condition may hold, and the place of its style in a list.
struct CellsOfStyle {
    std::size_t style;
    std::vector<CellBlock> cells;
};

class StylesOnBlock {
public:
    StylesOnBlock(SheetRecord& sheet, const CellBlock& block,
                  const std::vector<CellCondition>& conditions)
        : used_(blockOf(sheet.wholeCells(sheet.used()))),
          isTaken_(static_cast<std::size_t>(used_.cells())) {
        for (const CellCondition& condition : conditions) {
            const auto name = styleNameOf(condition);
            if (!name.isEmpty()) add(sheet.book(), name, condition.blocks, block);
        }
    }

    [[nodiscard]] bool isAnyTold() const {
        return std::any_of(styles_.begin(), styles_.end(),
                           [](const SeenStyle& each) { return each.isTold; });
    }
    [[nodiscard]] bool isTold(const rtl::OUString& name) const {
        return std::any_of(styles_.begin(), styles_.end(), [&](const SeenStyle& each) {
            return each.isTold && each.style.name == name;
        });
    }
    /// Of several conditions on a cell the first one counts.
    void find(SheetLooks& looks) {
        for (const auto& [style, cells] : inOrder_) {
            if (!styles_[style].isTold) continue;
            for (const CellBlock& each : cells) findIn(each, styles_[style], looks);
        }
    }
    [[nodiscard]] std::vector<HeldStyle> takeTold() {
        std::vector<HeldStyle> told;
        for (SeenStyle& each : styles_)
            if (each.isTold) told.push_back(std::move(each.style));
        return told;
    }

private:
    void add(CalcDocument& book, const rtl::OUString& name, const std::vector<CellBlock>& blocks,
             const CellBlock& within) {
        auto found = std::find_if(styles_.begin(), styles_.end(),
                                  [&](const SeenStyle& each) { return each.style.name == name; });
        if (found == styles_.end()) {
            const auto style = cellStyle(book.model(), name);
            if (!style.is()) return;
            const StyleMarks marks = marksOf(style);
            found = styles_.insert(
                found, {{name, takesAfterParent(book.model(), style), {}}, marks, marks.areSeen()});
        }
        CellsOfStyle cells = {static_cast<std::size_t>(found - styles_.begin()), {}};
        for (const CellBlock& each : blocks) {
            const auto common = intersection(each, within);
            if (!common) continue;
            if (intersection(*common, used_) != common) found->isTold = false;
            cells.cells.push_back(*common);
        }
        inOrder_.push_back(std::move(cells));
    }
    void findIn(const CellBlock& cells, SeenStyle& seen, SheetLooks& looks) {
        for (std::int32_t column = cells.firstColumn; column <= cells.lastColumn; ++column) {
            for (std::int32_t row = cells.firstRow; row <= cells.lastRow; ++row) {
                const CellDress* const look = looks.at(column, row);
                if (look == nullptr || !seen.marks.areOn(*look)) continue;
                const auto place = static_cast<std::size_t>(row - used_.firstRow) *
                                       static_cast<std::size_t>(used_.columns()) +
                                   static_cast<std::size_t>(column - used_.firstColumn);
                if (!isTaken_[place]) take(column, row, seen.style.cells);
                isTaken_[place] = true;
            }
        }
    }
    /// In runs downwards.
    static void take(std::int32_t column, std::int32_t row, std::vector<CellBlock>& held) {
        const bool goesOn =
            !held.empty() && held.back().lastColumn == column && held.back().lastRow == row - 1;
        if (goesOn)
            held.back().lastRow = row;
        else
            held.push_back(CellBlock::cell(row, column));
    }

    CellBlock used_;
    std::vector<bool> isTaken_;
    std::vector<SeenStyle> styles_;
    std::vector<CellsOfStyle> inOrder_;
};

}  // namespace

std::vector<HeldStyle> heldStylesOn(SheetRecord& sheet, const CellBlock& block,
                                    const std::vector<CellCondition>& conditions) {
    BookLooks& book = sheet.book().looks();
    if (conditions.empty() || book.isTooLarge()) return {};
    StylesOnBlock styles(sheet, block, conditions);
    if (!styles.isAnyTold()) return {};
    SheetLooks* const looks = book.of(sheet);
    if (looks == nullptr) return {};
    styles.find(*looks);
    auto told = styles.takeTold();
    const bool isAnyMisdrawn = std::any_of(told.begin(), told.end(), [](const HeldStyle& each) {
        return !each.takesAfterParent && !each.cells.empty();
    });
    if (!isAnyMisdrawn && UncopiedConditions(conditions).within(block).empty()) return {};
    return told;
}

bool mayBeMisdrawn(SheetRecord& sheet, const CellBlock& block) {
    BookLooks& book = sheet.book().looks();
    auto conditions = book.conditionsOn(sheet, block);
    if (conditions.empty()) return false;
    const auto drawn = model::drawnPart(block, sheet);
    if (!drawn) return false;
    std::erase_if(conditions, [&](const CellCondition& each) {
        return UncopiedConditions({each}).within(*drawn).empty();
    });
    if (conditions.empty()) return false;
    const StylesOnBlock styles(sheet, *drawn, conditions);
    return std::any_of(conditions.begin(), conditions.end(), [&](const CellCondition& each) {
        const auto name = styleNameOf(each);
        if (name.isEmpty() || (styles.isTold(name) && !book.isTooLarge())) return false;
        return comparesCells(each) || readsAround(sheet, *drawn, each);
    });
}

}  // namespace libreoffice::excel
