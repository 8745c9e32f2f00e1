#include "office/libreoffice/excel/named_ranges.h"

#include <com/sun/star/container/NoSuchElementException.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeReferrer.hpp>

#include <algorithm>
#include <array>

#include "office/libreoffice/at_end.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/unrecorded.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

/// What LibreOffice puts ahead of names that Excel itself gives: in packages, and in older files,
/// whoever wrote these.
constexpr std::array<std::string_view, 3> builtIn = {"_xlnm.", "_xlnm_", "Excel_BuiltIn_"};
constexpr std::array<std::string_view, 5> givenByExcel = {"Print_Area", "Print_Titles",
                                                          "_FilterDatabase", "Criteria", "Extract"};

bool isGivenByExcel(std::string_view name) {
    return std::any_of(givenByExcel.begin(), givenByExcel.end(),
                       [&](std::string_view each) { return office::sameIgnoringCase(each, name); });
}

/// Without what is put ahead of it; nothing if that is none of Excel's.
std::optional<std::string> nameInExcel(std::string_view stored) {
    for (const std::string_view prefix : builtIn) {
        if (stored.starts_with(prefix) && isGivenByExcel(stored.substr(prefix.size())))
            return std::string(stored.substr(prefix.size()));
    }
    return std::nullopt;
}

/// The flag of a hidden name; the headers of older LibreOffice versions don't know it.
constexpr sal_Int32 hiddenNameFlag = 16;

/// "$'Q1''s'.$A$1" as sheet and rest. A quoted name may hold a point.
std::optional<model::OnSheet> splitAtPoint(std::string_view reference) {
    if (reference.starts_with('$')) reference.remove_prefix(1);
    const auto parts = model::splitOutsideQuotes(reference, ".");
    if (parts.size() != 2 || parts[0].empty()) return std::nullopt;
    return model::splitSheet(std::string(parts[0]) + "!" + std::string(parts[1]));
}

/// Each letter part and each number part of a fixed reference has its own "$".
bool isAbsolute(std::string_view address) {
    const auto ends = model::splitOutsideQuotes(address, ":");
    return std::all_of(ends.begin(), ends.end(), [](std::string_view corner) {
        const bool hasDigits = corner.find_first_of("0123456789") != std::string_view::npos;
        const bool hasLetters = corner.find_first_not_of("$0123456789") != std::string_view::npos;
        const auto marks = std::count(corner.begin(), corner.end(), '$');
        return corner.starts_with('$') && marks == (hasDigits && hasLetters ? 2 : 1);
    });
}

/// The cells that the contents of a name stand for, in LibreOffice's own notation
/// ("$Sales.$A$1:$B$2", several areas joined by ";" or "~"). Nothing if they are no fixed cells of
/// one sheet of this workbook: a constant, a formula, a broken or relative reference, cells of
/// another file.
std::optional<model::CellsOfSheet> cellsOfContents(std::string_view contents) {
    model::CellsOfSheet cells;
    for (const std::string_view reference : model::splitOutsideQuotes(contents, ";~")) {
        const auto split = splitAtPoint(reference);
        if (!split || !isAbsolute(split->text)) return std::nullopt;
        const auto block = model::blockOf(split->text);
        if (!block || (!cells.sheet.empty() && cells.sheet != split->sheet)) return std::nullopt;
        cells.sheet = split->sheet;
        cells.blocks.push_back(*block);
    }
    return cells;
}

std::string referenceTo(const model::CellsOfSheet& cells) {
    std::string contents;
    for (const model::CellBlock& block : cells.blocks) {
        if (!contents.empty()) contents += '~';
        contents += "$'" + office::replaceAll(cells.sheet, "'", "''") + "'." + addressOf(block);
    }
    return contents;
}

/// Whether the contents may be one reference that moves with the cell it is used in ("$Sales.A1").
bool couldBeRelative(std::string_view contents) {
    const auto split = splitAtPoint(contents);
    return split && !isAbsolute(split->text) && model::blockOf(split->text);
}

}  // namespace

std::vector<std::string> NamedRanges::all() {
    std::vector<std::string> names;
    const auto stored = ranges_->getElementNames();
    for (const rtl::OUString& each : stored) {
        std::string name = fromUno(each);
        if (auto own = nameInExcel(name)) {
            // An older file may have the same behind two of them.
            if (std::find(names.begin(), names.end(), *own) != names.end()) continue;
            name = *std::move(own);
        }
        names.push_back(std::move(name));
    }
    return names;
}

NamedRanges::Seen& NamedRanges::seen() {
    if (!look_.holds(book_)) seen_ = {};
    look_.note(book_);
    return seen_;
}

bool NamedRanges::has(std::string_view name) {
    auto& known = seen().isThere;
    const std::string wanted(name);
    if (const auto found = known.find(wanted); found != known.end()) return found->second;
    return known[wanted] = storedName(name).has_value();
}

std::optional<rtl::OUString> NamedRanges::storedName(std::string_view name) const {
    if (const rtl::OUString plain = toUno(name); ranges_->hasByName(plain)) return plain;
    if (!isGivenByExcel(name)) return std::nullopt;
    for (const std::string_view prefix : builtIn) {
        const rtl::OUString prefixed = toUno(std::string(prefix) + std::string(name));
        if (ranges_->hasByName(prefixed)) return prefixed;
    }
    return std::nullopt;
}

/// LibreOffice's object of a name stands for whatever bears that name now; it has no contents when
/// nothing does.
uno::Reference<css::sheet::XNamedRange> NamedRanges::fetch(const std::string& name) {
    if (const auto known = fetched_.find(name); known != fetched_.end()) return known->second;
    uno::Reference<css::sheet::XNamedRange> range;
    try {
        range.set(ranges_->getByName(toUno(name)), uno::UNO_QUERY_THROW);
    } catch (const css::container::NoSuchElementException&) {
        const auto stored = storedName(name);
        if (!stored) throw;
        range.set(ranges_->getByName(*stored), uno::UNO_QUERY_THROW);
    }
    fetched_[name] = range;
    return range;
}

std::string NamedRanges::contentsOf(const std::string& name) {
    if (const auto known = seen().contents.find(name); known != seen_.contents.end())
        return known->second;
    std::string contents = fromUno(fetch(name)->getContent());
    if (contents.empty()) {
        fetched_.erase(name);
        contents = fromUno(fetch(name)->getContent());
    }
    return seen_.contents[name] = contents;
}

std::optional<model::NamedCells> NamedRanges::cells(const std::string& name) {
    const std::string contents = contentsOf(name);
    if (const auto cells = cellsOfContents(contents)) {
        const model::SheetPtr sheet = book_.findSheet(cells->sheet);
        if (!sheet) return std::nullopt;
        return model::NamedCells{book_.self(), sheet, cells->blocks};
    }
    return couldBeRelative(contents) ? referred(fetch(name)) : std::nullopt;
}

/// Cells that are no fixed ones ("$Sales.A1") are where LibreOffice finds them from the name's own
/// position.
std::optional<model::NamedCells> NamedRanges::referred(
    const uno::Reference<css::sheet::XNamedRange>& range) const {
    const auto cells = as<css::sheet::XCellRangeReferrer>(range)->getReferredCells();
    if (!cells.is()) return std::nullopt;
    const auto address = as<css::sheet::XCellRangeAddressable>(cells)->getRangeAddress();
    const model::SheetPtr sheet = book_.sheetList().at(address.Sheet);
    if (!sheet) return std::nullopt;
    return model::NamedCells{book_.self(), sheet, {blockOf(address)}};
}

bool NamedRanges::isVisible(const std::string& name) {
    return (fetch(name)->getType() & hiddenNameFlag) == 0;
}

void NamedRanges::define(const std::string& name, const model::CellsOfSheet& cells, bool visible) {
    const rtl::OUString contents = toUno(referenceTo(cells));
    const sal_Int32 type = visible ? 0 : hiddenNameFlag;
    const Unrecorded quiet(book_);
    const auto whenDone = atEnd([this] { book_.noteOwnChange(); });
    if (has(name)) {
        const auto known = fetch(name);
        known->setContent(contents);
        known->setType(type);
    } else {
        ranges_->addNewByName(toUno(name), contents, css::table::CellAddress(), type);
    }
}

}  // namespace libreoffice::excel
