#include "office/libreoffice/excel/held_styles.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "office/libreoffice/excel/book_looks.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/cell_dress.h"
#include "office/libreoffice/excel/cell_styles.h"
#include "office/libreoffice/excel/condition_reach.h"

namespace libreoffice::excel {

namespace {

using model::CellBlock;

struct SeenStyle {
    rtl::OUString name;
    std::shared_ptr<const StyleFacts> facts;
    /// Whether the page shows where it is.
    bool isTold;
    std::vector<CellBlock> cells = {};
    /// Of the cells that it could be on those that the page lacks.
    std::vector<CellBlock> beyond = {};
};

/// Where in a block a condition may hold, and the place of its style in a list.
struct CellsOfStyle {
    std::size_t style;
    std::vector<CellBlock> cells;
};

bool areAlike(const CellStyle& one, const CellStyle& other) {
    const auto said = ownProperties(one);
    return said == ownProperties(other) && NamedValues(one, said) == NamedValues(other, said);
}

std::vector<CellBlock> partsBeyond(const CellBlock& used, const CellBlock& cells) {
    const auto [left, top, right, bottom] = cells;
    const auto seen = intersection(cells, used);
    if (!seen) return {cells};
    std::vector<CellBlock> parts = {{left, top, right, seen->firstRow - 1},
                                    {left, seen->firstRow, seen->firstColumn - 1, seen->lastRow},
                                    {seen->lastColumn + 1, seen->firstRow, right, seen->lastRow},
                                    {left, seen->lastRow + 1, right, bottom}};
    std::erase_if(parts,
                  [](const CellBlock& each) { return each.columns() < 1 || each.rows() < 1; });
    return parts;
}

class StylesOnBlock {
public:
    StylesOnBlock(SheetRecord& sheet, const CellBlock& block,
                  const std::vector<CellCondition>& conditions)
        : sheet_(sheet),
          used_(blockOf(sheet.wholeCells(sheet.used()))),
          seen_(intersection(block, used_)) {
        for (const CellCondition& condition : conditions) {
            const auto name = styleNameOf(condition);
            if (!name.isEmpty()) add(name, condition.blocks, block);
        }
    }

    [[nodiscard]] bool isAnyTold() const {
        return std::any_of(styles_.begin(), styles_.end(),
                           [](const SeenStyle& each) { return each.isTold; });
    }
    [[nodiscard]] bool isTold(const rtl::OUString& name) const {
        return std::any_of(styles_.begin(), styles_.end(), [&](const SeenStyle& each) {
            return each.isTold && each.beyond.empty() && each.name == name;
        });
    }
    [[nodiscard]] bool takeAfterParents() const {
        return std::all_of(styles_.begin(), styles_.end(),
                           [](const SeenStyle& each) { return each.facts->takesAfterParent; });
    }
    void find(SheetLooks& looks) {
        if (!seen_) return;
        const OwnDress own(sheet_, *seen_);
        std::vector<std::size_t> held(static_cast<std::size_t>(seen_->cells()), noStyle);
        for (const auto& [style, cells] : inOrder_)
            for (const CellBlock& each : cells) findIn(each, style, looks, own, held);
        for (std::size_t i = 0; i < held.size(); ++i) {
            const auto rows = static_cast<std::size_t>(seen_->rows());
            const auto column = seen_->firstColumn + static_cast<std::int32_t>(i / rows);
            const auto row = seen_->firstRow + static_cast<std::int32_t>(i % rows);
            if (held[i] != noStyle) take(column, row, styles_[held[i]].cells);
        }
    }
    [[nodiscard]] std::vector<HeldStyle> takeTold() {
        std::vector<HeldStyle> told;
        for (SeenStyle& each : styles_)
            if (each.isTold)
                told.push_back({each.name, each.facts->takesAfterParent, std::move(each.cells),
                                std::move(each.beyond)});
        return told;
    }

private:
    static constexpr auto noStyle = static_cast<std::size_t>(-1);

    void add(const rtl::OUString& name, const std::vector<CellBlock>& blocks,
             const CellBlock& within) {
        auto found = std::find_if(styles_.begin(), styles_.end(),
                                  [&](const SeenStyle& each) { return each.name == name; });
        if (found == styles_.end()) {
            const auto facts = sheet_.book().looks().styleFacts(name);
            if (!facts) return;
            styles_.push_back({name, facts, facts->marks.count() > 0});
            found = styles_.end() - 1;
        }
        CellsOfStyle cells = {static_cast<std::size_t>(found - styles_.begin()), {}};
        for (const CellBlock& each : blocks) {
            const auto common = intersection(each, within);
            if (!common) continue;
            if (const auto seen = intersection(*common, used_)) cells.cells.push_back(*seen);
            const auto beyond = partsBeyond(used_, *common);
            found->beyond.insert(found->beyond.end(), beyond.begin(), beyond.end());
        }
        inOrder_.push_back(std::move(cells));
    }
    /// Column by column.
    void findIn(const CellBlock& cells, std::size_t style, SheetLooks& looks, const OwnDress& own,
                std::vector<std::size_t>& held) {
        for (std::int32_t column = cells.firstColumn; column <= cells.lastColumn; ++column) {
            for (std::int32_t row = cells.firstRow; row <= cells.lastRow; ++row) {
                const CellDress* const look = looks.at(column, row);
                const StyleFacts& facts = *styles_[style].facts;
                if (look == nullptr || !facts.marks.areOn(*look)) continue;
                const CellDress& dress = own.at(column, row);
                // The cell would look so without the condition, too.
                if (facts.marks.areOn(dress)) {
                    if (facts.saysMore) styles_[style].isTold = false;
                    continue;
                }
                const auto place = static_cast<std::size_t>(column - seen_->firstColumn) *
                                       static_cast<std::size_t>(seen_->rows()) +
                                   static_cast<std::size_t>(row - seen_->firstRow);
                held[place] =
                    held[place] == noStyle ? style : likelier(held[place], style, *look, dress);
            }
        }
    }
    /// Of two styles that a cell may show the one that makes it look as it does, or the one that
    /// more of that comes from. None of them is told where both may, and differ in what is not
    /// seen.
    std::size_t likelier(std::size_t first, std::size_t second, const CellDress& look,
                         const CellDress& own) {
        const StyleFacts& one = *styles_[first].facts;
        const StyleFacts& other = *styles_[second].facts;
        const bool mayOne = one.marks.make(look, own), mayOther = other.marks.make(look, own);
        if (mayOne != mayOther) return mayOne ? first : second;
        const bool areEven = mayOne || one.marks.count() == other.marks.count();
        if (!areEven) return one.marks.count() > other.marks.count() ? first : second;
        const bool isOpen = (one.saysMore || other.saysMore) && !areAlike(one.style, other.style);
        if (first != second && isOpen) styles_[first].isTold = styles_[second].isTold = false;
        return first;
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

    SheetRecord& sheet_;
    CellBlock used_;
    /// What the page may hold of the block.
    std::optional<CellBlock> seen_;
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
    const bool isAnyUncopied = !UncopiedConditions(conditions).within(block).empty();
    if (!isAnyUncopied && styles.takeAfterParents()) return {};
    SheetLooks* const looks = book.of(sheet);
    if (looks == nullptr) return {};
    styles.find(*looks);
    auto told = styles.takeTold();
    const bool isAnyMisdrawn = std::any_of(told.begin(), told.end(), [](const HeldStyle& each) {
        return !each.takesAfterParent && !each.cells.empty();
    });
    if (!isAnyMisdrawn && !isAnyUncopied) return {};
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
    std::optional<bool> isTooLarge;
    const auto isToldOf = [&](const rtl::OUString& style) {
        if (!styles.isTold(style)) return false;
        if (!isTooLarge) isTooLarge = book.isTooLarge();
        return !*isTooLarge;
    };
    return std::any_of(conditions.begin(), conditions.end(), [&](const CellCondition& each) {
        const auto name = styleNameOf(each);
        if (name.isEmpty() || isToldOf(name)) return false;
        return comparesCells(each) || readsAround(sheet, *drawn, each);
    });
}

}  // namespace libreoffice::excel
