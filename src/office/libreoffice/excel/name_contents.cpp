#include "office/libreoffice/excel/name_contents.h"

#include <algorithm>
#include <utility>

#include "office/text.h"

namespace libreoffice::excel {

namespace {

std::vector<std::string_view> splitOutsideQuotes(std::string_view text,
                                                 std::string_view separators) {
    std::vector<std::string_view> parts;
    bool quoted = false;
    std::size_t from = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\'') quoted = !quoted;
        if (quoted || separators.find(text[at]) == std::string_view::npos) continue;
        parts.push_back(text.substr(from, at - from));
        from = at + 1;
    }
    parts.push_back(text.substr(from));
    return parts;
}

/// "$'Q1''s'.$A$1" as sheet and rest. A quoted name may hold a point.
std::optional<OnSheet> splitAtPoint(std::string_view reference) {
    if (reference.starts_with('$')) reference.remove_prefix(1);
    const auto parts = splitOutsideQuotes(reference, ".");
    if (parts.size() != 2 || parts[0].empty()) return std::nullopt;
    std::string_view sheet = parts[0];
    if (sheet.size() < 2 || sheet.front() != '\'') {
        return OnSheet{std::string(sheet), std::string(parts[1])};
    }
    sheet = sheet.substr(1, sheet.size() - 2);
    return OnSheet{office::replaceAll(sheet, "''", "'"), std::string(parts[1])};
}

/// Each letter part and each number part of a fixed reference has its own "$".
bool isAbsolute(std::string_view address) {
    const auto ends = splitOutsideQuotes(address, ":");
    return std::all_of(ends.begin(), ends.end(), [](std::string_view corner) {
        const bool hasDigits = corner.find_first_of("0123456789") != std::string_view::npos;
        const bool hasLetters = corner.find_first_not_of("$0123456789") != std::string_view::npos;
        const auto marks = std::count(corner.begin(), corner.end(), '$');
        return corner.starts_with('$') && marks == (hasDigits && hasLetters ? 2 : 1);
    });
}

}  // namespace

std::optional<CellsOfSheet> cellsOfContents(std::string_view contents) {
    CellsOfSheet cells;
    for (const std::string_view reference : splitOutsideQuotes(contents, ";~")) {
        const auto split = splitAtPoint(reference);
        if (!split || !isAbsolute(split->text)) return std::nullopt;
        const auto block = blockOf(split->text);
        if (!block || (!cells.sheet.empty() && cells.sheet != split->sheet)) return std::nullopt;
        cells.sheet = split->sheet;
        cells.blocks.push_back(*block);
    }
    return cells;
}

bool isBrokenReference(std::string_view contents) {
    return office::lowerCase(contents).find("#ref!") != std::string::npos;
}

bool couldBeRelative(std::string_view contents) {
    const auto split = splitAtPoint(contents);
    return split && !isAbsolute(split->text) && blockOf(split->text);
}

}  // namespace libreoffice::excel
