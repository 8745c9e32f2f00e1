#include "office/libreoffice/excel/scratch_book.h"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/datatransfer/XTransferable.hpp>
#include <com/sun/star/embed/Aspects.hpp>
#include <com/sun/star/embed/XVisualObject.hpp>
#include <com/sun/star/frame/XLoadable.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/ConditionEntryType.hpp>
#include <com/sun/star/sheet/ConditionFormatOperator.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XConditionalFormat.hpp>
#include <com/sun/star/sheet/XConditionalFormats.hpp>
#include <com/sun/star/sheet/XSheetCellRangeContainer.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSheetConditionalEntries.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/util/XCloseable.hpp>

#include <algorithm>
#include <utility>

#include "office/libreoffice/at_end.h"
#include "office/libreoffice/excel/cell_conditions.h"
#include "office/libreoffice/excel/cell_styles.h"

namespace libreoffice::excel {

namespace {

using Model = uno::Reference<css::frame::XModel>;

/// As an object in another document is opened: of its sheet that one shows the copied cells, which
/// stand where they came from.
void loadAsObject(const Connection& connection, const Model& book,
                  const uno::Sequence<sal_Int8>& copied) {
    // Heard before the book is loaded alone.
    book->attachResource("", propertyValues({{"SetEmbedded", uno::Any(true)}}));
    // Rows keep the heights that they have on the sheet, whatever their cells get below.
    setProperty(book, "IsAdjustHeightEnabled", false);
    const auto stream =
        connection.create("com.sun.star.io.SequenceInputStream", {uno::Any(copied)});
    as<css::frame::XLoadable>(book)->load(
        propertyValues({{"FilterName", uno::Any(rtl::OUString("calc8"))},
                        {"InputStream", uno::Any(stream)},
                        {"URL", uno::Any(rtl::OUString("private:stream"))}}));
}

/// One of several can't be removed: the suite refuses each. Those that go by a date stay, and are
/// drawn as in a copy.
void neverHold(const CellCondition& condition) {
    if (condition.kind != css::sheet::ConditionEntryType::CONDITION) return;
    setProperty(condition.entry, "Operator",
                sal_Int32{css::sheet::ConditionFormatOperator::EXPRESSION});
    setProperty(condition.entry, "Formula1", rtl::OUString("0"));
}

/// Of the only sheet.
uno::Reference<css::sheet::XSheetCellRanges> rangesOf(const Model& book,
                                                      const std::vector<model::CellBlock>& cells) {
    std::vector<css::table::CellRangeAddress> addresses;
    addresses.reserve(cells.size());
    for (const model::CellBlock& each : cells)
        addresses.emplace_back(0, each.firstColumn, each.firstRow, each.lastColumn, each.lastRow);
    const auto ranges = as<css::sheet::XSheetCellRangeContainer>(
        as<css::lang::XMultiServiceFactory>(book)->createInstance(
            "com.sun.star.sheet.SheetCellRanges"));
    ranges->addRangeAddresses(sequenceOf(addresses), false);
    return as<css::sheet::XSheetCellRanges>(ranges);
}

/// But where nothing tells of them.
void removeConditions(const Model& book, const uno::Reference<uno::XInterface>& sheet,
                      const std::vector<HeldStyle>& styles) {
    const auto meantBy = [&](const CellCondition& condition) {
        const auto name = styleNameOf(condition);
        return std::find_if(styles.begin(), styles.end(),
                            [&](const HeldStyle& each) { return each.name == name; });
    };
    const auto formats =
        property<uno::Reference<css::sheet::XConditionalFormats>>(sheet, "ConditionalFormats");
    if (!formats.is()) return;
    for (const auto& format : formats->getConditionalFormats()) {
        std::vector<CellCondition> meant = conditionsOf(format);
        const std::size_t all = meant.size();
        std::vector<model::CellBlock> beyond;
        std::erase_if(meant, [&](const CellCondition& each) {
            const auto style = meantBy(each);
            if (style == styles.end()) return true;
            const auto here = intersection(style->beyond, each.blocks);
            beyond.insert(beyond.end(), here.begin(), here.end());
            return false;
        });
        if (meant.size() == all && beyond.empty())
            formats->removeByID(property<sal_Int32>(format, "ID"));
        else if (meant.size() == all)
            setProperty(format, "Range", rangesOf(book, beyond));
        // With cells beyond, `dress` takes the format from those that it dresses.
        else if (beyond.empty())
            std::for_each(meant.begin(), meant.end(), neverHold);
    }
}

void dress(const Model& book, const HeldStyle& style) {
    if (style.cells.empty()) return;
    const auto cells = rangesOf(book, style.cells);
    const auto look = cellStyle(book, style.name);
    if (!look.is()) throw uno::RuntimeException("The copy lacks a style", book);
    const auto said =
        style.takesAfterParent ? propertiesAlongParents(book, look) : ownProperties(look);
    NamedValues(look, said).applyTo(cells);
    // The suite goes on to draw a format whose range no longer has the cells.
    if (style.beyond.empty()) return;
    const auto conditions =
        property<uno::Reference<css::sheet::XSheetConditionalEntries>>(cells, "ConditionalFormat");
    conditions->clear();
    setProperty(cells, "ConditionalFormat", conditions);
}

/// Puts the numbers into a column, and makes the format one of these cells too.
void widen(const Model& book, const uno::Reference<uno::XInterface>& sheet,
           const NumbersAround& around, std::int32_t column) {
    const auto most = static_cast<std::size_t>(model::CellBlock::lastRowOfSheet) + 1;
    std::vector<uno::Sequence<uno::Any>> rows;
    for (std::size_t i = 0; i < std::min(around.numbers.size(), most); ++i) {
        const uno::Any number(around.numbers[i]);
        rows.emplace_back(&number, 1);
    }
    const model::CellBlock strip = {column, 0, column, static_cast<std::int32_t>(rows.size()) - 1};
    const auto formats =
        property<uno::Reference<css::sheet::XConditionalFormats>>(sheet, "ConditionalFormats");
    for (const auto& format : formats->getConditionalFormats()) {
        const auto conditions = conditionsOf(format);
        const bool isMeant =
            std::any_of(conditions.begin(), conditions.end(), [&](const CellCondition& each) {
                return each.kind == around.kind && meetsAny(each.blocks, around.cells.front());
            });
        if (!isMeant) continue;
        as<css::sheet::XCellRangeData>(as<css::table::XCellRange>(sheet)->getCellRangeByPosition(
                                           column, strip.firstRow, column, strip.lastRow))
            ->setDataArray(sequenceOf(rows));
        auto cells = conditions.front().blocks;
        cells.push_back(strip);
        setProperty(format, "Range", rangesOf(book, cells));
        return;
    }
}

/// A copy knows no object that is larger than its page.
void showAll(const Model& book, const uno::Reference<uno::XInterface>& sheet,
             const model::CellBlock& block) {
    const auto cells =
        placeOf(as<css::table::XCellRange>(sheet)->getCellRangeByPosition(
                    block.firstColumn, block.firstRow, block.lastColumn, block.lastRow))
            .size;
    const auto seen = as<css::embed::XVisualObject>(book);
    const auto size = seen->getVisualAreaSize(css::embed::Aspects::MSOLE_CONTENT);
    constexpr int rounding = 100;
    if (size.Width < cells.Width - rounding || size.Height < cells.Height - rounding)
        seen->setVisualAreaSize(css::embed::Aspects::MSOLE_CONTENT, cells);
}

}  // namespace

uno::Sequence<sal_Int8> drawWith(const UntoldByCopy& untold, const Connection& connection,
                                 const uno::Sequence<sal_Int8>& copied,
                                 const model::CellBlock& block) {
    const auto book =
        as<css::frame::XModel>(connection.create("com.sun.star.sheet.SpreadsheetDocument"));
    const auto close = atEnd([&] { as<css::util::XCloseable>(book)->close(true); });
    loadAsObject(connection, book, copied);
    const uno::Reference<uno::XInterface> sheet(
        as<css::container::XIndexAccess>(as<css::sheet::XSpreadsheetDocument>(book)->getSheets())
            ->getByIndex(0),
        uno::UNO_QUERY_THROW);
    removeConditions(book, sheet, untold.styles);
    for (const HeldStyle& style : untold.styles) dress(book, style);
    std::int32_t column = block.lastColumn;
    for (const NumbersAround& around : untold.around) {
        // Beside a free one, so that no text of the block ends there.
        column += 2;
        if (column <= model::CellBlock::lastColumnOfSheet) widen(book, sheet, around, column);
    }
    showAll(book, sheet, block);
    uno::Sequence<sal_Int8> metafile;
    as<css::datatransfer::XTransferable>(book)->getTransferData(
        {rtl::OUString::createFromAscii(metafileType), "",
         cppu::UnoType<uno::Sequence<sal_Int8>>::get()}) >>= metafile;
    return metafile;
}

}  // namespace libreoffice::excel
