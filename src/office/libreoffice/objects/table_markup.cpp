#include "office/libreoffice/objects/table_markup.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <sstream>

#include "office/colour.h"

namespace libreoffice::objects {

using office::CellLine;
using office::CellLook;
using office::TableLook;

namespace {

/// Between a cell's border and its text, as Calc draws it; what is said of fitting texts goes by
/// it.
constexpr double paddingPt = 1;

constexpr std::array<std::pair<const char*, const char*>, 8> nameSpaces = {{
    {"office", "urn:oasis:names:tc:opendocument:xmlns:office:1.0"},
    {"style", "urn:oasis:names:tc:opendocument:xmlns:style:1.0"},
    {"text", "urn:oasis:names:tc:opendocument:xmlns:text:1.0"},
    {"table", "urn:oasis:names:tc:opendocument:xmlns:table:1.0"},
    {"draw", "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"},
    {"fo", "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"},
    {"svg", "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"},
    {"loext", "urn:org:documentfoundation:names:experimental:office:xmlns:loext:1.0"},
}};

}  // namespace

void setAttributes(pugi::xml_node node,
                   std::initializer_list<std::pair<const char*, std::string>> attributes) {
    for (const auto& [name, value] : attributes)
        node.append_attribute(name).set_value(value.c_str());
}

std::string pointsText(double length) {
    return fmt::format("{:.3f}pt", length);
}

std::string TableMarkup::write(const TableLook& table) {
    const std::vector<double> widths = scaled(table.columnWidthsPt);
    const std::vector<double> heights = scaled(table.rowHeightsPt);
    const auto sum = [](const std::vector<double>& lengths) {
        return std::accumulate(lengths.begin(), lengths.end(), 0.0);
    };
    pugi::xml_node grid = addTable(sum(widths), sum(heights));
    for (const double width : widths) {
        const auto style = styled("table-column", {{"style:table-column-properties",
                                                    {{"style:column-width", pointsText(width)}}}});
        setAttributes(grid.append_child("table:table-column"), {{"table:style-name", style}});
    }
    for (std::size_t row = 0; row < heights.size(); ++row) {
        const auto style = styled(
            "table-row",
            {{"style:table-row-properties", {{rowHeightProperty(), pointsText(heights[row])}}}});
        pugi::xml_node line = grid.append_child("table:table-row");
        setAttributes(line, {{"table:style-name", style}});
        for (std::size_t column = 0; column < widths.size(); ++column)
            addCell(line, table.at(row, column));
    }
    std::ostringstream text;
    document_.save(text, "", pugi::format_raw, pugi::encoding_utf8);
    return text.str();
}

std::vector<double> TableMarkup::scaled(const std::vector<double>& lengthsPt) const {
    std::vector<double> lengths;
    double end = 0;
    double before = 0;
    for (const double length : lengthsPt) {
        end += length * scale_;
        const double here = placeOf(end);
        lengths.push_back(here - before);
        before = here;
    }
    return lengths;
}

pugi::xml_node TableMarkup::addRoot(const char* name) {
    pugi::xml_node root = document_.append_child(name);
    for (const auto& [prefix, space] : nameSpaces)
        setAttributes(root, {{fmt::format("xmlns:{}", prefix).c_str(), space}});
    setAttributes(root, {{"office:version", "1.3"}});
    styles_ = root.append_child("office:automatic-styles");
    return root;
}

std::string TableMarkup::styled(const char* family, const std::vector<StylePart>& parts) {
    std::string key = family;
    for (const StylePart& part : parts) {
        for (const auto& [name, value] : part.attributes) key += fmt::format(";{}={}", name, value);
    }
    std::string& name = namesOfStyles_[key];
    if (!name.empty()) return name;
    name = freeName("s");
    pugi::xml_node style = styles_.append_child("style:style");
    setAttributes(style, {{"style:name", name}, {"style:family", family}});
    for (const StylePart& part : parts) {
        pugi::xml_node element = style.append_child(part.element);
        for (const auto& [attribute, value] : part.attributes)
            setAttributes(element, {{attribute.c_str(), value}});
    }
    return name;
}

std::string TableMarkup::freeName(std::string_view word) const {
    return fmt::format("{}{}", word, namesOfStyles_.size());
}

TableMarkup::Attributes TableMarkup::paddingOf(const CellLook& cell) const {
    const bool fromRight = cell.across == CellLook::Across::Right;
    const double indent = paddingPt + cell.indentPt;
    return {{"fo:padding-left", pointsText((fromRight ? paddingPt : indent) * scale_)},
            {"fo:padding-right", pointsText((fromRight ? indent : paddingPt) * scale_)},
            {"fo:padding-top", "0pt"},
            {"fo:padding-bottom", "0pt"}};
}

const char* TableMarkup::heightInCell(const CellLook& cell) {
    constexpr std::array<const char*, 3> heights = {"top", "middle", "bottom"};
    return heights.at(static_cast<std::size_t>(cell.down));
}

std::string TableMarkup::line(const CellLine& line) const {
    constexpr double thinnest = 0.25;
    if (line.widthPt <= 0) return "none";
    const char* kind = "solid";
    if (line.style == CellLine::Style::Dashed) kind = "dashed";
    if (line.style == CellLine::Style::Dotted) kind = "dotted";
    if (line.style == CellLine::Style::Double) kind = "double";
    return fmt::format("{} {} {}", pointsText(std::max(thinnest, line.widthPt * scale_)), kind,
                       office::colourText(line.colour));
}

void TableMarkup::addCell(pugi::xml_node row, const CellLook& cell) {
    if (cell.isCovered) {
        row.append_child("table:covered-table-cell");
        return;
    }
    pugi::xml_node element = row.append_child("table:table-cell");
    setAttributes(element, {{"table:style-name", styled("table-cell", cellStyle(cell))}});
    if (cell.columns > 1)
        setAttributes(element, {{"table:number-columns-spanned", fmt::format("{}", cell.columns)}});
    if (cell.rows > 1)
        setAttributes(element, {{"table:number-rows-spanned", fmt::format("{}", cell.rows)}});
    addText(element, cell);
}

TableMarkup::Attributes TableMarkup::paragraphLook(const CellLook& cell) const {
    constexpr std::array<const char*, 4> sides = {"start", "center", "end", "justify"};
    return {{"fo:text-align", sides.at(static_cast<std::size_t>(cell.across))},
            {"fo:margin-left", "0pt"},
            {"fo:margin-right", "0pt"},
            {"fo:margin-top", "0pt"},
            {"fo:margin-bottom", "0pt"},
            {"fo:line-height", "100%"},
            // A sheet puts no space between a number and the ideograph behind it.
            {"style:text-autospace", "none"}};
}

TableMarkup::Attributes TableMarkup::letters(const CellLook& cell) const {
    Attributes letters;
    for (const auto& [script, ownFont] : {std::pair("", &cell.fontName),
                                          {"-asian", &cell.asianFontName},
                                          {"-complex", &cell.complexFontName}}) {
        const char* space = *script == '\0' ? "fo" : "style";
        const auto set = [&, ending = script](const char* name, const std::string& value) {
            letters.emplace_back(fmt::format("{}:{}{}", space, name, ending), value);
        };
        const std::string& font = ownFont->empty() ? cell.fontName : *ownFont;
        if (!font.empty()) set("font-family", fmt::format("'{}'", font));
        set("font-size", pointsText(cell.fontSizePt * scale_));
        set("font-weight", cell.isBold ? "bold" : "normal");
    }
    letters.emplace_back("fo:color", office::colourText(cell.fontColour));
    letters.emplace_back("style:text-underline-style", cell.isUnderlined ? "solid" : "none");
    letters.emplace_back("style:text-underline-type", cell.isUnderlinedTwice ? "double" : "single");
    letters.emplace_back("style:text-line-through-style", cell.isStruckOut ? "solid" : "none");
    return letters;
}

pugi::xml_node TableMarkup::addParagraph(pugi::xml_node cell, const CellLook& look) {
    pugi::xml_node paragraph = cell.append_child("text:p");
    const auto style = styled("paragraph", {{"style:paragraph-properties", paragraphLook(look)},
                                            {"style:text-properties", letters(look)}});
    setAttributes(paragraph, {{"text:style-name", style}});
    return paragraph;
}

/// Spaces count here only if they are elements beside the first of several.
void TableMarkup::addWords(pugi::xml_node paragraph, const std::string& text) {
    std::string run;
    const auto endRun = [&] {
        if (!run.empty()) paragraph.append_child(pugi::node_pcdata).set_value(run.c_str());
        run.clear();
    };
    bool isAfterSpace = true;
    for (const char letter : text) {
        const bool isSpace = letter == ' ';
        const char* element = nullptr;
        if (letter == '\n') element = "text:line-break";
        if (letter == '\t') element = "text:tab";
        if (isSpace && isAfterSpace) element = "text:s";
        if (element != nullptr) {
            endRun();
            paragraph.append_child(element);
        } else {
            run += letter;
        }
        isAfterSpace = isSpace || letter == '\n';
    }
    endRun();
}

}  // namespace libreoffice::objects
