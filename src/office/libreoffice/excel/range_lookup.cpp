#include "office/libreoffice/excel/range_lookup.h"

#include <fmt/format.h>

#include <optional>
#include <string>

#include "office/failure.h"
#include "office/libreoffice/excel/name_list.h"
#include "office/libreoffice/excel/objects.h"
#include "office/libreoffice/excel/range.h"

namespace libreoffice::excel {

namespace {

[[noreturn]] void noSuchRange(const std::string& source, std::string_view wanted) {
    throw Failure(FailureNumber::ApplicationDefined, source,
                  fmt::format("There is no range {}", wanted));
}

/// An argument of `Range`: a range as it is, a text looked up.
std::optional<FoundCells> cellsOf(const DeskPtr& desk, CalcDocument& book, const SheetPtr& sheet,
                                  const Value& wanted, const std::string& source) {
    if (wanted.isText()) return cellsOfText(book, desk->connection(), sheet, wanted.toText());
    const Range& range = rangeOf(wanted, source);
    return FoundCells{range.sheetPtr(), range.blocks()};
}

std::string wordsFor(const Value& wanted) {
    return wanted.isText() ? fmt::format("\"{}\"", wanted.toText()) : "there";
}

/// What `Rows` and `Columns` take: a number, "B:D" or "1:5", or a single "B".
CellBlock linesOf(const Value& which, bool rows, const std::string& source) {
    if (which.isText()) {
        const std::string text = which.toText();
        const auto block = blockOf(text.find(':') == std::string::npos ? text + ":" + text : text);
        if (block && (rows ? block->spansAllColumns() : block->spansAllRows())) return *block;
    } else {
        const std::int32_t place = which.toLong() - 1;
        const CellBlock block = rows ? CellBlock{0, place, CellBlock::lastColumnOfSheet, place}
                                     : CellBlock{place, 0, place, CellBlock::lastRowOfSheet};
        if (block.isOnSheet()) return block;
    }
    throw Failure(FailureNumber::TypeMismatch, source,
                  rows ? "These are no rows" : "These are no columns");
}

Value linesByArguments(const DeskPtr& desk, const BookPtr& book, const SheetPtr& sheet,
                       const CallArguments& arguments, bool rows) {
    const RangeUnit unit = rows ? RangeUnit::Rows : RangeUnit::Columns;
    if (!arguments.has(0)) return rangeObject(desk, book, sheet, {CellBlock::wholeSheet()}, unit);
    return rangeObject(desk, book, sheet, {linesOf(arguments.at(0), rows, arguments.source())},
                       unit);
}

}  // namespace

Value rangeByArguments(const DeskPtr& desk, const BookPtr& book, const SheetPtr& sheet,
                       const CallArguments& arguments, bool mayLeaveSheet) {
    auto found = cellsOf(desk, *book, sheet, arguments.at(0), arguments.source());
    if (!found) noSuchRange(arguments.source(), wordsFor(arguments.at(0)));
    if (arguments.has(1)) {
        const auto other = cellsOf(desk, *book, found->sheet, arguments.at(1), arguments.source());
        if (!other || other->sheet != found->sheet)
            noSuchRange(arguments.source(), wordsFor(arguments.at(1)));
        CellBlock all = found->blocks.front();
        for (const CellBlock& block : found->blocks) all = around(all, block);
        for (const CellBlock& block : other->blocks) all = around(all, block);
        found->blocks = {all};
    }
    if (!mayLeaveSheet && found->sheet != sheet) {
        noSuchRange(arguments.source(), wordsFor(arguments.at(0)) + " on this sheet");
    }
    return rangeObject(desk, book, found->sheet, std::move(found->blocks));
}

Value cellsByArguments(const DeskPtr& desk, const BookPtr& book, const SheetPtr& sheet,
                       const CallArguments& arguments) {
    return Range(desk, book, sheet, {CellBlock::wholeSheet()}).item(arguments);
}

Value rowsByArguments(const DeskPtr& desk, const BookPtr& book, const SheetPtr& sheet,
                      const CallArguments& arguments) {
    return linesByArguments(desk, book, sheet, arguments, true);
}

Value columnsByArguments(const DeskPtr& desk, const BookPtr& book, const SheetPtr& sheet,
                         const CallArguments& arguments) {
    return linesByArguments(desk, book, sheet, arguments, false);
}

}  // namespace libreoffice::excel
