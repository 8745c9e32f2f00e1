#include "office_double/excel/address.h"

#include <fmt/format.h>

#include <cctype>
#include <utility>

#include "office/text.h"

namespace office_double {

namespace {

bool isLetter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

/// Takes the digits off the front; 0 if there are none or too many.
int takeNumber(std::string_view& text) {
    int number = 0;
    std::size_t length = 0;
    while (length < text.size() && length < 8 && isDigit(text[length])) {
        number = number * 10 + (text[length++] - '0');
    }
    text.remove_prefix(length);
    return number;
}

/// One end of a range; 0 stands for what the text leaves out.
struct End {
    int row = 0;
    int column = 0;
};

std::optional<End> endOf(std::string_view text) {
    const std::string plain = office::replaceAll(text, "$", "");
    std::string_view rest = plain;
    std::size_t letters = 0;
    while (letters < rest.size() && isLetter(rest[letters])) ++letters;
    End end;
    if (letters > 0) {
        end.column = columnNumber(rest.substr(0, letters));
        if (end.column == 0) return std::nullopt;
        rest.remove_prefix(letters);
    }
    if (!rest.empty()) {
        end.row = takeNumber(rest);
        if (end.row == 0 || end.row > lastRow || !rest.empty()) return std::nullopt;
    }
    if (end.row == 0 && end.column == 0) return std::nullopt;
    return end;
}

std::optional<End> endOfR1C1(std::string_view text) {
    End end;
    const auto take = [&](char letter, int& number) {
        if (text.empty() || std::toupper(static_cast<unsigned char>(text.front())) != letter) {
            return true;
        }
        text.remove_prefix(1);
        number = takeNumber(text);
        return number != 0;
    };
    if (!take('R', end.row) || !take('C', end.column) || !text.empty()) return std::nullopt;
    if (end.row == 0 && end.column == 0) return std::nullopt;
    return end;
}

/// A cell needs both numbers; "A" alone means the column only as one end of "A:C" or in R1C1.
std::optional<Area> areaBetween(std::optional<End> first, std::optional<End> last) {
    if (!first || !last) return std::nullopt;
    if ((first->row == 0) != (last->row == 0)) return std::nullopt;
    if ((first->column == 0) != (last->column == 0)) return std::nullopt;
    if (first->row == 0) *first = {1, first->column}, last->row = lastRow;
    if (first->column == 0) *first = {first->row, 1}, last->column = lastColumn;
    return Area{std::min(first->row, last->row), std::min(first->column, last->column),
                std::max(first->row, last->row), std::max(first->column, last->column)};
}

std::string lettersOf(int column) {
    std::string letters;
    for (; column > 0; column = (column - 1) / 26) {
        letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
    }
    return letters;
}

std::string fromTo(const std::string& first, const std::string& last, bool single) {
    return single ? first : first + ":" + last;
}

/// Splits at commas that stand outside quotes.
std::vector<std::string> parts(std::string_view text) {
    std::vector<std::string> all(1);
    bool quoted = false;
    for (const char c : text) {
        if (c == '\'') quoted = !quoted;
        if (c == ',' && !quoted) {
            all.emplace_back();
        } else {
            all.back() += c;
        }
    }
    return all;
}

std::optional<Reference> referenceOf(std::string_view text, Notation notation) {
    const auto mark = text.rfind('!');
    if (mark == std::string_view::npos) return std::nullopt;
    const std::string_view address = text.substr(mark + 1);
    const auto area = notation == Notation::A1 ? areaOf(address) : areaOfR1C1(address);
    if (!area) return std::nullopt;
    std::string sheet(text.substr(0, mark));
    if (sheet.size() > 1 && sheet.front() == '\'' && sheet.back() == '\'') {
        sheet = office::replaceAll(sheet.substr(1, sheet.size() - 2), "''", "'");
    }
    Reference reference{{}, sheet, *area};
    const auto open = sheet.find('[');
    const auto close = sheet.find(']');
    if (open != std::string::npos && close != std::string::npos && open < close) {
        reference.book = sheet.substr(open + 1, close - open - 1);
        reference.sheet = sheet.substr(close + 1);
    }
    return reference;
}

}  // namespace

std::optional<Area> intersection(const Area& first, const Area& second) {
    const Area common{std::max(first.top, second.top), std::max(first.left, second.left),
                      std::min(first.bottom, second.bottom), std::min(first.right, second.right)};
    if (common.top > common.bottom || common.left > common.right) return std::nullopt;
    return common;
}

std::optional<Area> areaOf(std::string_view address) {
    const auto colon = address.find(':');
    const auto first = endOf(address.substr(0, colon));
    if (colon != std::string_view::npos)
        return areaBetween(first, endOf(address.substr(colon + 1)));
    if (!first || first->row == 0 || first->column == 0) return std::nullopt;
    return areaBetween(first, first);
}

std::optional<Area> areaOfR1C1(std::string_view address) {
    const auto colon = address.find(':');
    const auto first = endOfR1C1(address.substr(0, colon));
    if (colon == std::string_view::npos) return areaBetween(first, first);
    return areaBetween(first, endOfR1C1(address.substr(colon + 1)));
}

std::string addressOf(const Area& area) {
    const std::string left = lettersOf(area.left);
    const std::string right = lettersOf(area.right);
    if (area.rows() == lastRow) return fmt::format("${}:${}", left, right);
    if (area.columns() == lastColumn) return fmt::format("${}:${}", area.top, area.bottom);
    return fromTo(fmt::format("${}${}", left, area.top), fmt::format("${}${}", right, area.bottom),
                  area.cells() == 1);
}

std::string addressR1C1Of(const Area& area) {
    if (area.rows() == lastRow) {
        return fromTo(fmt::format("C{}", area.left), fmt::format("C{}", area.right),
                      area.columns() == 1);
    }
    if (area.columns() == lastColumn) {
        return fromTo(fmt::format("R{}", area.top), fmt::format("R{}", area.bottom),
                      area.rows() == 1);
    }
    return fromTo(fmt::format("R{}C{}", area.top, area.left),
                  fmt::format("R{}C{}", area.bottom, area.right), area.cells() == 1);
}

int columnNumber(std::string_view letters) {
    int number = 0;
    for (const char c : letters) {
        if (!isLetter(c) || number > lastColumn) return 0;
        number = number * 26 + (std::toupper(static_cast<unsigned char>(c)) - 'A' + 1);
    }
    return number > lastColumn ? 0 : number;
}

std::vector<Reference> referencesOf(std::string_view formula, Notation notation) {
    std::vector<Reference> all;
    if (formula.starts_with('=')) formula.remove_prefix(1);
    for (const std::string& part : parts(formula)) {
        auto reference = referenceOf(part, notation);
        if (!reference) return {};
        all.push_back(std::move(*reference));
    }
    return all;
}

std::string formulaOf(const std::vector<Reference>& references, Notation notation) {
    std::string formula = "=";
    for (const Reference& reference : references) {
        if (formula.size() > 1) formula += ",";
        const std::string sheet =
            reference.book.empty() ? reference.sheet : "[" + reference.book + "]" + reference.sheet;
        formula += quotedIfNeeded(sheet) + "!";
        formula +=
            notation == Notation::A1 ? addressOf(reference.area) : addressR1C1Of(reference.area);
    }
    return formula;
}

std::string quotedIfNeeded(std::string_view sheet) {
    const bool word = !sheet.empty() && !isDigit(sheet.front()) &&
                      std::all_of(sheet.begin(), sheet.end(), [](char c) {
                          return isLetter(c) || isDigit(c) || c == '_' || c == '.';
                      });
    return word ? std::string(sheet) : "'" + office::replaceAll(sheet, "'", "''") + "'";
}

}  // namespace office_double
