#include "office/libreoffice/excel/name_list.h"

#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeReferrer.hpp>

#include <algorithm>
#include <utility>

#include "office/text.h"

namespace libreoffice::excel {

namespace {

constexpr std::string_view builtIn = "_xlnm.";

const uno::Reference<css::sheet::XNamedRanges>& containerOf(CalcDocument& book,
                                                            const SheetPtr& scope) {
    return scope ? scope->names() : book.names();
}

void append(CalcDocument& book, const SheetPtr& scope, std::vector<NameEntry>& into) {
    const auto names = containerOf(book, scope)->getElementNames();
    for (const rtl::OUString& name : names) into.push_back({scope, fromUno(name)});
}

/// Cells that are no fixed ones ("$Sales.A1") are where LibreOffice finds them from the name's own
/// position.
std::optional<FoundCells> referredCells(CalcDocument& book, const Connection& connection,
                                        const uno::Reference<css::sheet::XNamedRange>& name) {
    const auto cells = as<css::sheet::XCellRangeReferrer>(name)->getReferredCells();
    if (!cells.is()) return std::nullopt;
    const auto address = as<css::sheet::XCellRangeAddressable>(cells)->getRangeAddress();
    const SheetPtr sheet = book.sheets(connection).at(address.Sheet);
    if (!sheet) return std::nullopt;
    return FoundCells{sheet,
                      {{address.StartColumn, address.StartRow, address.EndColumn, address.EndRow}}};
}

}  // namespace

std::string NameEntry::shortName() const {
    return storedName.starts_with(builtIn) ? storedName.substr(builtIn.size()) : storedName;
}

std::string NameEntry::fullName() const {
    return scope ? quotedSheet(scope->knownName()) + "!" + shortName() : shortName();
}

std::vector<NameEntry> listNames(CalcDocument& book, const Connection& connection,
                                 const SheetPtr& ofSheet) {
    std::vector<NameEntry> names;
    if (ofSheet) {
        append(book, ofSheet, names);
    } else {
        for (const SheetPtr& sheet : book.sheets(connection).all()) append(book, sheet, names);
        append(book, nullptr, names);
    }
    const auto isBefore = [](const NameEntry& one, const NameEntry& other) {
        return office::lowerCase(one.shortName()) < office::lowerCase(other.shortName());
    };
    std::stable_sort(names.begin(), names.end(), isBefore);
    return names;
}

uno::Reference<css::sheet::XNamedRange> fetchName(CalcDocument& book, const NameEntry& entry) {
    return {containerOf(book, entry.scope)->getByName(toUno(entry.storedName)),
            uno::UNO_QUERY_THROW};
}

std::optional<NameEntry> findNameIn(CalcDocument& book, const SheetPtr& scope,
                                    std::string_view name) {
    const auto& container = containerOf(book, scope);
    if (container->hasByName(toUno(name))) return NameEntry{scope, std::string(name)};
    const std::string builtInName = std::string(builtIn) + std::string(name);
    const bool couldBeBuiltIn = scope && office::lowerCase(name).starts_with("print_");
    if (couldBeBuiltIn && container->hasByName(toUno(builtInName)))
        return NameEntry{scope, builtInName};
    return std::nullopt;
}

std::optional<NameEntry> findName(CalcDocument& book, const Connection& connection,
                                  std::string_view name) {
    SheetList& sheets = book.sheets(connection);
    if (const auto split = splitSheet(name)) {
        const SheetPtr sheet = sheets.find(split->sheet);
        return sheet ? findNameIn(book, sheet, split->text) : std::nullopt;
    }
    if (auto own = findNameIn(book, nullptr, name)) return own;
    if (const SheetPtr active = book.activeSheet(connection)) {
        if (auto local = findNameIn(book, active, name)) return local;
    }
    for (const SheetPtr& sheet : sheets.all()) {
        if (auto local = findNameIn(book, sheet, name)) return local;
    }
    return std::nullopt;
}

std::optional<FoundCells> cellsOfName(CalcDocument& book, const Connection& connection,
                                      const NameEntry& entry) {
    const auto name = fetchName(book, entry);
    const std::string contents = fromUno(name->getContent());
    if (const auto cells = cellsOfContents(contents)) {
        const SheetPtr sheet = book.sheets(connection).find(cells->sheet);
        return sheet ? std::optional(FoundCells{sheet, cells->blocks}) : std::nullopt;
    }
    if (!couldBeRelative(contents)) return std::nullopt;
    return referredCells(book, connection, name);
}

std::optional<FoundCells> cellsOfText(CalcDocument& book, const Connection& connection,
                                      const SheetPtr& onSheet, std::string_view text) {
    SheetPtr sheet = onSheet;
    const auto split = splitSheet(text);
    if (split) sheet = book.sheets(connection).find(split->sheet);
    const std::string_view rest = split ? std::string_view(split->text) : text;
    if (sheet) {
        if (const auto blocks = blocksOf(rest)) return FoundCells{sheet, *blocks};
        if (const auto local = findNameIn(book, sheet, rest))
            return cellsOfName(book, connection, *local);
    }
    if (split) return std::nullopt;
    const auto own = findNameIn(book, nullptr, rest);
    return own ? cellsOfName(book, connection, *own) : std::nullopt;
}

}  // namespace libreoffice::excel
