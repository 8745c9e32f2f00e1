#include "office/libreoffice/excel/condition_reach.h"

#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/ComplexReference.hpp>
#include <com/sun/star/sheet/FormulaLanguage.hpp>
#include <com/sun/star/sheet/ReferenceFlags.hpp>
#include <com/sun/star/sheet/SingleReference.hpp>
#include <com/sun/star/sheet/XFormulaOpCodeMapper.hpp>
#include <com/sun/star/sheet/XFormulaParser.hpp>

#include <algorithm>
#include <optional>

#include "office/libreoffice/excel/calc_document.h"

namespace libreoffice::excel {

namespace {

namespace Flags = css::sheet::ReferenceFlags;
using css::sheet::SingleReference;
using model::CellBlock;

/// What a reference that is written for one cell means for all cells of a block.
CellBlock reachOf(const SingleReference& reference, const CellBlock& cells) {
    const auto from = [](bool isRelative, sal_Int32 offset, sal_Int32 place, std::int32_t cell) {
        return isRelative ? cell + offset : place;
    };
    const bool goesAlong = (reference.Flags & Flags::COLUMN_RELATIVE) != 0;
    const bool goesDown = (reference.Flags & Flags::ROW_RELATIVE) != 0;
    return {from(goesAlong, reference.RelativeColumn, reference.Column, cells.firstColumn),
            from(goesDown, reference.RelativeRow, reference.Row, cells.firstRow),
            from(goesAlong, reference.RelativeColumn, reference.Column, cells.lastColumn),
            from(goesDown, reference.RelativeRow, reference.Row, cells.lastRow)};
}

bool leadsOut(const SingleReference& reference, sal_Int32 sheet, const CellBlock& cells,
              const CellBlock& block) {
    const bool isElsewhere = (reference.Flags & Flags::SHEET_RELATIVE) != 0
                                 ? reference.RelativeSheet != 0
                                 : reference.Sheet != sheet;
    const CellBlock reach = reachOf(reference, cells);
    return isElsewhere || intersection(reach, block) != reach;
}

/// What a function finds, and what a name or another workbook holds, counts as outside.
bool leadsOut(const css::sheet::FormulaToken& token, const std::vector<sal_Int32>& finders,
              sal_Int32 sheet, const CellBlock& cells, const CellBlock& block) {
    if (SingleReference one; token.Data >>= one) return leadsOut(one, sheet, cells, block);
    if (css::sheet::ComplexReference range; token.Data >>= range)
        return leadsOut(range.Reference1, sheet, cells, block) ||
               leadsOut(range.Reference2, sheet, cells, block);
    return token.Data.getValueTypeClass() == uno::TypeClass_STRUCT ||
           std::find(finders.begin(), finders.end(), token.OpCode) != finders.end();
}

/// The functions that give other cells than they name.
std::vector<sal_Int32> codesOfFinders(const uno::Reference<css::lang::XMultiServiceFactory>& book) {
    const auto mapper = as<css::sheet::XFormulaOpCodeMapper>(
        book->createInstance("com.sun.star.sheet.FormulaOpCodeMapper"));
    std::vector<sal_Int32> codes;
    const auto names = sequenceOf<rtl::OUString>({"INDIRECT", "OFFSET"});
    for (const auto& token : mapper->getMappings(names, css::sheet::FormulaLanguage::ENGLISH))
        codes.push_back(token.OpCode);
    return codes;
}

}  // namespace

bool readsAround(SheetRecord& sheet, const CellBlock& block, const CellCondition& condition) {
    CellBlock all = condition.blocks.front();
    for (const CellBlock& each : condition.blocks) all = around(all, each);
    const auto place = static_cast<sal_Int16>(sheet.place());
    const auto book = as<css::lang::XMultiServiceFactory>(sheet.book().model());
    const auto parser =
        as<css::sheet::XFormulaParser>(book->createInstance("com.sun.star.sheet.FormulaParser"));
    const auto finders = codesOfFinders(book);
    std::vector<css::sheet::FormulaToken> read;
    for (const char* name : {"Formula1", "Formula2"}) {
        const auto formula = property<rtl::OUString>(condition.entry, name);
        // As the suite tells it: for the first of all cells.
        const auto tokens = parser->parseFormula(formula, {place, all.firstColumn, all.firstRow});
        read.insert(read.end(), tokens.begin(), tokens.end());
    }
    return std::any_of(
        condition.blocks.begin(), condition.blocks.end(), [&](const CellBlock& each) {
            const auto cells = intersection(each, block);
            return cells && std::any_of(read.begin(), read.end(),
                                        [&](const css::sheet::FormulaToken& token) {
                                            return leadsOut(token, finders, place, *cells, block);
                                        });
        });
}

}  // namespace libreoffice::excel
