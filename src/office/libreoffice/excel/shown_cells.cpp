#include "office/libreoffice/excel/shown_cells.h"

#include <algorithm>
#include <map>
#include <memory>

#include "office/libreoffice/excel/held_styles.h"
#include "office/libreoffice/units.h"

namespace libreoffice::excel {

namespace {

/// Each such range takes calls, and what has no more cells than that is small.
bool isSmall(const model::CellBlock& block) {
    constexpr std::int32_t fewRows = 30;
    constexpr std::int32_t fewColumns = 10;
    return block.rows() <= fewRows && block.columns() <= fewColumns;
}

/// A sheet, and where it has sparklines.
struct SheetOfItems {
    std::shared_ptr<SheetRecord> record;
    model::CellBlocks sparklines;
};

SheetOfItems sheetOfItems(CalcDocument& book, const std::string& name) {
    SheetOfItems sheet{std::dynamic_pointer_cast<SheetRecord>(book.findSheet(name)), {}};
    if (sheet.record && !sheet.record->part.empty())
        sheet.sparklines = readSparklines(book.url(), sheet.record->part);
    return sheet;
}

office::ShownCells shownIn(const SheetOfItems& sheet, const model::CellBlock& block) {
    office::ShownCells shown;
    shown.haveSparklines = std::any_of(
        sheet.sparklines.begin(), sheet.sparklines.end(),
        [&](const model::CellBlock& each) { return intersection(each, block).has_value(); });
    shown.mayBeMisdrawn = mayBeMisdrawn(*sheet.record, block);
    const auto drawn = isSmall(block) ? std::nullopt : model::drawnPart(block, *sheet.record);
    if (!drawn || isSmall(*drawn)) return shown;
    const auto cells = sheet.record->range(*drawn);
    const auto size = placeOf(cells).size;
    shown.size = {pointsOf(size.Width), pointsOf(size.Height)};
    shown.lettersPt = static_cast<double>(property<float>(cells, "CharHeight"));
    return shown;
}

}  // namespace

std::vector<office::ShownCells> shownCells(CalcDocument& book,
                                           const std::vector<office::PasteItem>& items) {
    std::map<std::string, SheetOfItems> sheets;
    std::vector<office::ShownCells> all;
    for (const office::PasteItem& item : items) {
        all.emplace_back();
        const auto block = model::blockOf(item.source.address);
        if (!block) continue;
        const auto [place, isNew] = sheets.try_emplace(item.source.sheet);
        if (isNew) place->second = sheetOfItems(book, item.source.sheet);
        if (place->second.record) all.back() = shownIn(place->second, *block);
    }
    return all;
}

}  // namespace libreoffice::excel
