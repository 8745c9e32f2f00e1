#include "office/package/workbook/cell_number_formats.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <string_view>

#include "office/package/xml.h"

namespace office::package {

namespace {

constexpr std::string_view blanks = " \t\r\n";

/// The formats that no file writes out. Those with a currency differ from country to country.
constexpr std::pair<int, const char*> builtIn[] = {
    {1, "0"},
    {2, "0.00"},
    {3, "#,##0"},
    {4, "#,##0.00"},
    {9, "0%"},
    {10, "0.00%"},
    {11, "0.00E+00"},
    {12, "# ?/?"},
    {13, "# ?\?/?\?"},
    {14, "m/d/yyyy"},
    {15, "d-mmm-yy"},
    {16, "d-mmm"},
    {17, "mmm-yy"},
    {18, "h:mm AM/PM"},
    {19, "h:mm:ss AM/PM"},
    {20, "h:mm"},
    {21, "h:mm:ss"},
    {22, "m/d/yyyy h:mm"},
    {37, R"(#,##0_);\(#,##0\))"},
    {38, R"(#,##0_);[Red]\(#,##0\))"},
    {39, R"(#,##0.00_);\(#,##0.00\))"},
    {40, R"(#,##0.00_);[Red]\(#,##0.00\))"},
    {45, "mm:ss"},
    {46, "[h]:mm:ss"},
    {47, "mm:ss.0"},
    {48, "##0.0E+0"},
    {49, "@"},
};

std::string_view withoutBlanksAhead(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

std::string_view attributeIn(std::string_view tag, std::string_view name) {
    for (auto at = tag.find(name); at != std::string_view::npos; at = tag.find(name, at + 1)) {
        if (at == 0 || blanks.find(tag[at - 1]) == std::string_view::npos) continue;
        std::string_view rest = withoutBlanksAhead(tag.substr(at + name.size()));
        if (!rest.starts_with('=')) continue;
        rest = withoutBlanksAhead(rest.substr(1));
        if (rest.empty()) return {};
        return rest.substr(1, rest.find(rest.front(), 1) - 1);
    }
    return {};
}

template <class Number>
std::optional<Number> wholeNumber(std::string_view text) {
    Number number = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (problem != std::errc() || text.empty()) return std::nullopt;
    return number;
}

}  // namespace

std::string CellNumberFormats::codeAt(const std::string& sheet, std::int32_t row,
                                      std::int32_t column) {
    auto known = sheets_.find(sheet);
    if (known == sheets_.end()) known = sheets_.emplace(sheet, readSheet(sheet)).first;
    const auto found = known->second.find(column);
    if (found == known->second.end()) return general;
    const auto next =
        std::upper_bound(found->second.begin(), found->second.end(), row,
                         [](std::int32_t place, const auto& from) { return place < from.first; });
    if (next == found->second.begin()) return general;
    const std::size_t style = std::prev(next)->second;
    return style < codes_.size() ? codes_[style] : general;
}

/// As bytes: there may be more cells than any markup has that is read.
CellNumberFormats::Styles CellNumberFormats::readSheet(const std::string& sheet) {
    // Far below what a package reads in all, which charts and pictures need too.
    constexpr std::size_t mostBytes = 128 << 20;
    Styles styles;
    try {
        const WorkbookSheet* const found = book_->sheet(sheet);
        if (found == nullptr || bytesRead_ > mostBytes) return {};
        if (codes_.empty()) readCodes();
        const std::string bytes = book_->package().read(found->part);
        bytesRead_ += bytes.size();
        const std::string_view xml = bytes;
        std::int32_t row = -1;
        std::int32_t column = -1;
        for (auto at = xml.find('<'); at != std::string_view::npos;) {
            const auto next = xml.find('<', at + 1);
            std::string_view tag = xml.substr(at + 1, next - at - 1);
            tag = tag.substr(0, tag.find('>'));
            at = next;
            std::string_view name = tag.substr(0, tag.find_first_of(" \t\r\n/"));
            name = name.substr(name.find(':') + 1);
            if (name == "row") {
                row = wholeNumber<std::int32_t>(attributeIn(tag, "r")).value_or(row + 2) - 1;
                column = -1;
            } else if (name == "c") {
                const std::string_view place = attributeIn(tag, "r");
                const auto letters = place.substr(0, place.find_first_of("0123456789"));
                column = office::model::excel::columnOf(letters).value_or(column + 1);
                if (column > CellBlock::lastColumnOfSheet) continue;
                const auto style = wholeNumber<std::size_t>(attributeIn(tag, "s")).value_or(0);
                auto& ofColumn = styles[column];
                if (ofColumn.empty() || ofColumn.back().second != style)
                    ofColumn.emplace_back(row, style);
            }
        }
    } catch (const PackageError&) {
        // What can't be read tells no formats.
        return {};
    }
    return styles;
}

void CellNumberFormats::readCodes() {
    const std::string part = book_->package().partOfType(book_->mainPart(), "styles");
    if (part.empty()) return;
    const Xml xml(book_->package().read(part), part);
    std::map<int, std::string> codes(std::begin(builtIn), std::end(builtIn));
    const auto own = childNamed(xml.root(), ns::spreadsheet, "numFmts");
    for (const pugi::xml_node format : childrenNamed(own, ns::spreadsheet, "numFmt"))
        codes[format.attribute("numFmtId").as_int()] = format.attribute("formatCode").value();
    const auto styles = childNamed(xml.root(), ns::spreadsheet, "cellXfs");
    for (const pugi::xml_node style : childrenNamed(styles, ns::spreadsheet, "xf")) {
        const auto found = codes.find(style.attribute("numFmtId").as_int());
        codes_.push_back(found == codes.end() || found->second.empty() ? general : found->second);
    }
}

}  // namespace office::package
