#include "office/libreoffice/excel/table_losses.h"

#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/ConditionEntryType.hpp>
#include <com/sun/star/sheet/DataBarEntryType.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XDataBarEntry.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/table/BorderLine2.hpp>
#include <com/sun/star/text/XText.hpp>

#include <algorithm>
#include <map>
#include <memory>

#include "office/item_remarks.h"
#include "office/libreoffice/excel/answered.h"
#include "office/libreoffice/excel/cell_conditions.h"
#include "office/libreoffice/excel/cell_styles.h"
#include "office/libreoffice/excel/cells_alike.h"
#include "office/libreoffice/excel/sheet_drawings.h"
#include "office/libreoffice/excel/table_of_cells.h"

namespace libreoffice::excel {

namespace {

namespace Kind = css::sheet::ConditionEntryType;
using model::CellBlock;
using office::ItemRemarks;

static_assert(mostCellsOfTable == 5000, "the texts say so");
const ItemRemarks::Text tooLarge = {
    "{} can't be a table and will be left out: it has more than 5,000 cells.",
    "{} can't be tables and will be left out: each has more than 5,000 cells."};
const ItemRemarks::Text tooWide = {
    "{} will be a picture: it has more columns than a table can have there.",
    "{} will be pictures: each has more columns than a table can have there."};
const ItemRemarks::Text icons = {"The table of {} will be without the icons in its cells.",
                                 "The tables of {} will be without the icons in their cells."};
const ItemRemarks::Text bars = {"The table of {} will be without the bars in its cells.",
                                "The tables of {} will be without the bars in their cells."};
const ItemRemarks::Text tableStyles = {
    "{} will be without the colours of its table style: LibreOffice draws none.",
    "{} will be without the colours of their table styles: LibreOffice draws none."};
const ItemRemarks::Text lostConditions = {
    "In the table of {} conditional formats may be missing that go by a formula or by cells "
    "outside.",
    "In the tables of {} conditional formats may be missing that go by a formula or by cells "
    "outside."};
const ItemRemarks::Text numberFormats = {
    "In the table of {} conditional formats will not change how numbers are written.",
    "In the tables of {} conditional formats will not change how numbers are written."};
const ItemRemarks::Text lines = {
    "In the table of {} conditional formats will not draw or remove lines around cells.",
    "In the tables of {} conditional formats will not draw or remove lines around cells."};
const ItemRemarks::Text diagonals = {
    "The table of {} will be without the lines from corner to corner of its cells.",
    "The tables of {} will be without the lines from corner to corner of their cells."};
const ItemRemarks::Text severalLooks = {
    "In the table of {} the text of each cell will have one look alone, where it has several now.",
    "In the tables of {} the text of each cell will have one look alone, where it has several "
    "now."};
const ItemRemarks::Text drawings = {
    "The table of {} will be without the charts and drawings that lie on it.",
    "The tables of {} will be without the charts and drawings that lie on them."};
const ItemRemarks::Text drawingsAlone = {
    "The table of {} will be without the drawings that lie on it.",
    "The tables of {} will be without the drawings that lie on them."};

/// The cells of those conditions of a kind that are meant.
template <class Test>
std::vector<CellBlock> blocksOf(const std::vector<CellCondition>& all, sal_Int32 kind,
                                Test isMeant) {
    std::vector<CellBlock> found;
    for (const CellCondition& condition : all) {
        if (condition.kind == kind && isMeant(condition))
            found.insert(found.end(), condition.blocks.begin(), condition.blocks.end());
    }
    return found;
}

bool isAny(const CellCondition& /*condition*/) {
    return true;
}

bool barEndsInFormula(const CellCondition& condition) {
    using Ends = uno::Sequence<uno::Reference<css::sheet::XDataBarEntry>>;
    const auto ends = property<Ends>(condition.entry, "DataBarEntries");
    return std::any_of(ends.begin(), ends.end(), [](const auto& end) {
        return end->getType() == css::sheet::DataBarEntryType::DATABAR_FORMULA;
    });
}

/// The cells of those conditions whose styles say something of their own of a property.
std::vector<CellBlock> blocksThatSay(const char* property, const std::vector<CellCondition>& all,
                                     CalcDocument& book) {
    return blocksOf(all, Kind::CONDITION, [&](const CellCondition& condition) {
        const auto style = cellStyle(book.model(), styleNameOf(condition));
        if (!style.is()) return false;
        return as<css::beans::XPropertyState>(style)->getPropertyState(
                   rtl::OUString::createFromAscii(property)) ==
               css::beans::PropertyState_DIRECT_VALUE;
    });
}

/// Whether any cell has a line from corner to corner.
bool hasDiagonals(const uno::Reference<css::table::XCellRange>& cells) {
    const std::vector<rtl::OUString> names = {"DiagonalBLTR2", "DiagonalTLBR2"};
    const auto states = as<css::beans::XPropertyState>(cells)->getPropertyStates(
        {names.data(), static_cast<sal_Int32>(names.size())});
    // As a rule no cell says anything of them.
    if (std::all_of(states.begin(), states.end(), [](css::beans::PropertyState state) {
            return state == css::beans::PropertyState_DEFAULT_VALUE;
        }))
        return false;
    const auto groups = cellsAlike(cells);
    return std::any_of(groups.begin(), groups.end(), [&](const auto& group) {
        const NamedValues drawn(group, names);
        return std::any_of(names.begin(), names.end(), [&](const rtl::OUString& name) {
            return drawn.get<css::table::BorderLine2>(name).LineWidth > 0;
        });
    });
}

/// Whether parts of a cell's text look different. The suite calls a look ambiguous then, whichever
/// it is asked for.
bool hasSeveralLooks(const uno::Reference<css::table::XCell>& cell) {
    const auto cursor = as<css::text::XText>(cell)->createTextCursor();
    cursor->gotoStart(false);
    cursor->gotoEnd(true);
    return as<css::beans::XPropertyState>(cursor)->getPropertyState("CharColor") ==
           css::beans::PropertyState_AMBIGUOUS_VALUE;
}

/// Looks into some of the cells that the suite keeps as formatted text, which those with lines
/// broken by hand are too.
bool hasCellOfSeveralLooks(const SheetRecord& sheet, const CellBlock& block) {
    constexpr int most = 20;
    const auto formatted = answered(as<css::sheet::XCellRangesQuery>(sheet.range(block))
                                        ->queryContentCells(css::sheet::CellFlags::FORMATTED));
    int seen = 0;
    const auto addresses = formatted->getRangeAddresses();
    for (const css::table::CellRangeAddress& part : addresses) {
        for (sal_Int32 row = part.StartRow; row <= part.EndRow; ++row) {
            for (sal_Int32 column = part.StartColumn; column <= part.EndColumn; ++column) {
                if (seen++ == most) return false;
                if (hasSeveralLooks(sheet.sheet()->getCellByPosition(column, row))) return true;
            }
        }
    }
    return false;
}

class LossesOfSheet {
public:
    LossesOfSheet(const std::shared_ptr<SheetRecord>& sheet, TablesOn where)
        : LossesOfSheet(sheet, sheet->book().looks().conditionsOn(*sheet, CellBlock::wholeSheet()),
                        where) {}

    [[nodiscard]] std::optional<CellBlock> drawnPartOf(const CellBlock& block) const {
        return model::drawnPart(block, *sheet_);
    }

    void tell(const office::PasteItem& item, const CellBlock& block, ItemRemarks& remarks) {
        const bool isOnPage = where_ == TablesOn::Page;
        if (!isOnPage && isTooLarge(block)) {
            remarks.add(tooLarge, item);
            return;
        }
        if (!isOnPage && isTooWide(item, block)) {
            remarks.add(tooWide, item);
            return;
        }
        if (meetsAny(icons_, block)) remarks.add(icons, item);
        if (meetsAny(lostBars_, block)) remarks.add(bars, item);
        if (mayMissConditions(block)) remarks.add(lostConditions, item);
        if (meetsAny(withNumberFormat_, block)) remarks.add(numberFormats, item);
        if (meetsAny(withLines_, block)) remarks.add(lines, item);
        if (meetsAny(styledTables_, block)) remarks.add(tableStyles, item);
        // Neither Impress nor Writer draws them, and pages are written without.
        if (!item.isForFile && hasDiagonals(sheet_->range(block))) remarks.add(diagonals, item);
        if (hasCellOfSeveralLooks(*sheet_, block)) remarks.add(severalLooks, item);
        if (drawings_.lieOn(block)) remarks.add(isOnPage ? drawingsAlone : drawings, item);
    }

private:
    LossesOfSheet(std::shared_ptr<SheetRecord> sheet, const std::vector<CellCondition>& all,
                  TablesOn where)
        : where_(where),
          sheet_(std::move(sheet)),
          icons_(blocksOf(all, Kind::ICONSET, isAny)),
          lostBars_(where == TablesOn::Text ? blocksOf(all, Kind::DATABAR, isAny)
                                            : blocksOf(all, Kind::DATABAR, barEndsInFormula)),
          uncopied_(all),
          withNumberFormat_(blocksThatSay("NumberFormat", all, sheet_->book())),
          // One property of the suite's own stands for the lines of all sides.
          withLines_(blocksThatSay("BottomBorder2", all, sheet_->book())),
          styledTables_(sheet_->book().styledTablesOn(sheet_->name())),
          drawings_(*sheet_, where == TablesOn::Page ? SheetDrawings::Which::AllButCharts
                                                     : SheetDrawings::Which::All) {}

    [[nodiscard]] bool isTooLarge(const CellBlock& block) const {
        return block.cells() > static_cast<double>(mostCellsOfTable) &&
               isTooLargeForTable(*sheet_, block, mostCellsOfTable);
    }

    [[nodiscard]] bool isTooWide(const office::PasteItem& item, const CellBlock& block) const {
        return item.mostColumns && isTooWideForTable(*sheet_, block, *item.mostColumns);
    }
    /// The suite tells how conditions leave no cell beyond those in use.
    [[nodiscard]] bool mayMissConditions(const CellBlock& block) {
        if (uncopied_.lackColourIn(block)) return true;
        const auto cells = uncopied_.within(block);
        if (cells.empty()) return false;
        if (!used_) used_ = blockOf(sheet_->wholeCells(sheet_->used()));
        return std::any_of(
                   cells.begin(), cells.end(),
                   [&](const CellBlock& each) { return intersection(each, *used_) != each; }) ||
               sheet_->book().looks().isTooLarge();
    }

    TablesOn where_;
    std::shared_ptr<SheetRecord> sheet_;
    std::vector<CellBlock> icons_;
    std::vector<CellBlock> lostBars_;
    UncopiedConditions uncopied_;
    /// Once it was asked for.
    std::optional<CellBlock> used_;
    std::vector<CellBlock> withNumberFormat_;
    std::vector<CellBlock> withLines_;
    std::vector<CellBlock> styledTables_;
    SheetDrawings drawings_;
};

}  // namespace

std::vector<std::string> lossesOfTables(CalcDocument& book,
                                        const std::vector<office::PasteItem>& items,
                                        TablesOn where) {
    std::map<std::string, std::unique_ptr<LossesOfSheet>> sheets;
    ItemRemarks remarks;
    for (const office::PasteItem& item : items) {
        const auto block = model::blockOf(item.source.address);
        if (item.source.kind != office::CopySource::Kind::Cells || !block) continue;
        auto& losses = sheets[item.source.sheet];
        if (!losses) {
            auto sheet = std::dynamic_pointer_cast<SheetRecord>(book.findSheet(item.source.sheet));
            if (!sheet) continue;
            losses = std::make_unique<LossesOfSheet>(std::move(sheet), where);
        }
        if (const auto drawn = losses->drawnPartOf(*block)) losses->tell(item, *drawn, remarks);
    }
    return remarks.lines();
}

}  // namespace libreoffice::excel
