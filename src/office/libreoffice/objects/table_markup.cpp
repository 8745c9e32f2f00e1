#include "office/libreoffice/objects/table_markup.h"

#include <fmt/format.h>
#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <sstream>
#include <utility>
#include <vector>

#include "office/colour.h"
#include "office/libreoffice/units.h"
#include "office/text.h"

namespace libreoffice::objects {

namespace {

using office::CellLine;
using office::CellLook;
using office::TableLook;

/// Between a cell's border and its text, as Calc draws it; what is said of fitting texts goes by
/// it.
constexpr double paddingPt = 1;

std::string points(double length) {
    return fmt::format("{:.3f}pt", length);
}

void setAttributes(pugi::xml_node node,
                   std::initializer_list<std::pair<const char*, std::string>> attributes) {
    for (const auto& [name, value] : attributes)
        node.append_attribute(name).set_value(value.c_str());
}

/// The document that is written, and the styles that it has so far.
class TableDocument {
public:
    enum class Kind { Drawing, Text };

    TableDocument(const TableLook& table, double scale, Kind kind);

    [[nodiscard]] std::string written() const;

private:
    using Attributes = std::vector<std::pair<std::string, std::string>>;
    struct StylePart {
        const char* element;
        Attributes attributes;
    };

    /// Of columns or rows. Those of a drawing are whole units of LibreOffice and add up: it lays a
    /// table that doesn't fill its frame out once more with each step of a paste.
    [[nodiscard]] std::vector<double> scaled(const std::vector<double>& lengthsPt) const;
    /// The name of the style of a family that is made of these parts.
    [[nodiscard]] std::string styled(const char* family, const std::vector<StylePart>& parts);
    /// Where the table goes.
    [[nodiscard]] pugi::xml_node drawing(double widthPt, double heightPt);
    [[nodiscard]] pugi::xml_node text(const TableLook& table);
    void addRoot(const char* name);
    [[nodiscard]] std::string cellStyle(const CellLook& cell);
    [[nodiscard]] std::vector<StylePart> drawnCell(const CellLook& cell, Attributes area,
                                                   const Attributes& lines);
    [[nodiscard]] Attributes fillOf(const CellLook& cell);
    [[nodiscard]] Attributes gradientOf(const CellLook& cell);
    [[nodiscard]] static std::vector<StylePart> writtenCell(const CellLook& cell, Attributes area,
                                                            const Attributes& lines);
    [[nodiscard]] std::string paragraphStyle(const CellLook& cell);
    [[nodiscard]] Attributes lettersOf(const CellLook& cell) const;
    /// LibreOffice writes a .docx that is not valid if the end of a paragraph says anything of
    /// this.
    [[nodiscard]] bool italicIsApart() const { return kind_ == Kind::Text; }
    [[nodiscard]] std::string line(const CellLine& line) const;
    void addCell(pugi::xml_node row, const CellLook& cell);
    void addText(pugi::xml_node cell, const CellLook& look);

    double scale_;
    Kind kind_;
    pugi::xml_document document_;
    pugi::xml_node styles_;
    std::map<std::string, std::string> namesOfStyles_;
};

constexpr std::array<std::pair<const char*, const char*>, 7> nameSpaces = {{
    {"office", "urn:oasis:names:tc:opendocument:xmlns:office:1.0"},
    {"style", "urn:oasis:names:tc:opendocument:xmlns:style:1.0"},
    {"text", "urn:oasis:names:tc:opendocument:xmlns:text:1.0"},
    {"table", "urn:oasis:names:tc:opendocument:xmlns:table:1.0"},
    {"draw", "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"},
    {"fo", "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"},
    {"svg", "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"},
}};
constexpr std::pair<const char*, const char*> extensions = {
    "loext", "urn:org:documentfoundation:names:experimental:office:xmlns:loext:1.0"};

TableDocument::TableDocument(const TableLook& table, double scale, Kind kind)
    : scale_(scale),
      kind_(kind) {
    const std::vector<double> widths = scaled(table.columnWidthsPt);
    const std::vector<double> heights = scaled(table.rowHeightsPt);
    const auto sum = [](const std::vector<double>& lengths) {
        return std::accumulate(lengths.begin(), lengths.end(), 0.0);
    };
    pugi::xml_node grid = kind == Kind::Drawing ? drawing(sum(widths), sum(heights)) : text(table);
    for (const double width : widths) {
        const auto style =
            styled("table-column",
                   {{"style:table-column-properties", {{"style:column-width", points(width)}}}});
        setAttributes(grid.append_child("table:table-column"), {{"table:style-name", style}});
    }
    // A text has room for a row that another font makes higher.
    const char* rowHeight = kind == Kind::Drawing ? "style:row-height" : "style:min-row-height";
    for (std::size_t row = 0; row < heights.size(); ++row) {
        const std::string height = points(heights[row]);
        const auto style =
            styled("table-row", {{"style:table-row-properties", {{rowHeight, height}}}});
        pugi::xml_node line = grid.append_child("table:table-row");
        setAttributes(line, {{"table:style-name", style}});
        for (std::size_t column = 0; column < widths.size(); ++column)
            addCell(line, table.at(row, column));
    }
}

std::vector<double> TableDocument::scaled(const std::vector<double>& lengthsPt) const {
    std::vector<double> lengths;
    double end = 0;
    double before = 0;
    for (const double length : lengthsPt) {
        end += length * scale_;
        const double here = kind_ == Kind::Drawing ? pointsOf(hundredthMmOf(end)) : end;
        lengths.push_back(here - before);
        before = here;
    }
    return lengths;
}

void TableDocument::addRoot(const char* name) {
    pugi::xml_node root = document_.append_child(name);
    for (const auto& [prefix, space] : nameSpaces)
        setAttributes(root, {{fmt::format("xmlns:{}", prefix).c_str(), space}});
    setAttributes(root, {{fmt::format("xmlns:{}", extensions.first).c_str(), extensions.second},
                         {"office:version", "1.3"}});
    styles_ = root.append_child("office:automatic-styles");
}

pugi::xml_node TableDocument::drawing(double widthPt, double heightPt) {
    addRoot("office:document");
    pugi::xml_node root = document_.document_element();
    setAttributes(root, {{"office:mimetype", "application/vnd.oasis.opendocument.presentation"}});
    setAttributes(styles_.append_child("style:page-layout"), {{"style:name", "page"}});
    setAttributes(root.append_child("office:master-styles").append_child("style:master-page"),
                  {{"style:name", "master"}, {"style:page-layout-name", "page"}});
    pugi::xml_node page = root.append_child("office:body")
                              .append_child("office:presentation")
                              .append_child("draw:page");
    setAttributes(page, {{"draw:master-page-name", "master"}});
    // LibreOffice counts the last unit within a frame as one of it.
    const double lastPt = pointsOf(1);
    pugi::xml_node frame = page.append_child("draw:frame");
    setAttributes(frame, {{"svg:x", "0pt"},
                          {"svg:y", "0pt"},
                          {"svg:width", points(widthPt - lastPt)},
                          {"svg:height", points(heightPt - lastPt)}});
    return frame.append_child("table:table");
}

pugi::xml_node TableDocument::text(const TableLook& table) {
    addRoot("office:document-content");
    pugi::xml_node grid = document_.document_element()
                              .append_child("office:body")
                              .append_child("office:text")
                              .append_child("table:table");
    const std::string style = styled("table", {{"style:table-properties",
                                                {{"style:width", points(table.widthPt() * scale_)},
                                                 {"table:align", "left"},
                                                 {"style:writing-mode", "lr-tb"},
                                                 {"fo:margin-left", "0pt"},
                                                 {"fo:margin-top", "0pt"},
                                                 {"fo:margin-bottom", "0pt"}}}});
    setAttributes(grid, {{"table:style-name", style}});
    return grid;
}

std::string TableDocument::written() const {
    std::ostringstream text;
    document_.save(text, "", pugi::format_raw, pugi::encoding_utf8);
    return text.str();
}

std::string TableDocument::styled(const char* family, const std::vector<StylePart>& parts) {
    std::string key = family;
    for (const StylePart& part : parts) {
        for (const auto& [name, value] : part.attributes) key += fmt::format(";{}={}", name, value);
    }
    std::string& name = namesOfStyles_[key];
    if (!name.empty()) return name;
    name = fmt::format("s{}", namesOfStyles_.size());
    pugi::xml_node style = styles_.append_child("style:style");
    setAttributes(style, {{"style:name", name}, {"style:family", family}});
    for (const StylePart& part : parts) {
        pugi::xml_node element = style.append_child(part.element);
        for (const auto& [attribute, value] : part.attributes)
            setAttributes(element, {{attribute.c_str(), value}});
    }
    return name;
}

std::string TableDocument::line(const CellLine& line) const {
    constexpr double thinnest = 0.25;
    if (line.widthPt <= 0) return "none";
    const char* kind = "solid";
    if (line.style == CellLine::Style::Dashed) kind = "dashed";
    if (line.style == CellLine::Style::Dotted) kind = "dotted";
    if (line.style == CellLine::Style::Double) kind = "double";
    return fmt::format("{} {} {}", points(std::max(thinnest, line.widthPt * scale_)), kind,
                       office::colourText(line.colour));
}

std::string TableDocument::cellStyle(const CellLook& cell) {
    Attributes area;
    const bool fromRight = cell.across == CellLook::Across::Right;
    const double indent = paddingPt + cell.indentPt;
    area.emplace_back("fo:padding-left", points((fromRight ? paddingPt : indent) * scale_));
    area.emplace_back("fo:padding-right", points((fromRight ? indent : paddingPt) * scale_));
    for (const char* side : {"top", "bottom"})
        area.emplace_back(fmt::format("fo:padding-{}", side), "0pt");
    Attributes lines;
    for (const auto& [side, drawn] : {std::pair("left", cell.left),
                                      {"right", cell.right},
                                      {"top", cell.top},
                                      {"bottom", cell.bottom}}) {
        if (kind_ == Kind::Text || drawn.widthPt > 0)
            lines.emplace_back(fmt::format("fo:border-{}", side), line(drawn));
    }
    // In a drawing any side says of the others that they have none, and LibreOffice goes through
    // the table for each thing that a cell says.
    if (lines.empty()) lines.emplace_back("fo:border-left", "none");
    return styled("table-cell", kind_ == Kind::Drawing ? drawnCell(cell, std::move(area), lines)
                                                       : writtenCell(cell, std::move(area), lines));
}

constexpr std::array<const char*, 3> heightsInCell = {"top", "middle", "bottom"};

TableDocument::Attributes TableDocument::fillOf(const CellLook& cell) {
    if (cell.bar && cell.bar->from < cell.bar->to) return gradientOf(cell);
    if (!cell.fill) return {{"draw:fill", "none"}};
    return {{"draw:fill", "solid"}, {"draw:fill-color", office::colourText(*cell.fill)}};
}

/// A bar is a gradient from the left to the right that changes its colour at one place. It stands
/// beside the styles: LibreOffice crashes on pasted drawings that have styles with names for users.
TableDocument::Attributes TableDocument::gradientOf(const CellLook& cell) {
    const std::string name = fmt::format("bar{}", namesOfStyles_.size());
    const auto& [from, to, left, right, isAlone] = *cell.bar;
    const auto addGradient = [&](const char* element) {
        pugi::xml_node gradient = styles_.append_child(element);
        setAttributes(gradient,
                      {{"draw:name", name}, {"draw:style", "linear"}, {"draw:angle", "90deg"}});
        return gradient;
    };
    pugi::xml_node colours = addGradient("draw:gradient");
    const std::int32_t ground = cell.fill.value_or(0xFFFFFF);
    for (const auto& [share, there] : {std::pair(0.0, ground),
                                       {from, ground},
                                       {from, left},
                                       {to, right},
                                       {to, ground},
                                       {1.0, ground}})
        setAttributes(colours.append_child("loext:gradient-stop"),
                      {{"svg:offset", fmt::format("{:.5f}", share)},
                       {"loext:color-type", "rgb"},
                       {"loext:color-value", office::colourText(there)}});
    Attributes fill = {{"draw:fill", "gradient"}, {"draw:fill-gradient-name", name}};
    if (cell.fill) return fill;
    pugi::xml_node opacity = addGradient("draw:opacity");
    for (const auto& [share, there] :
         {std::pair(0.0, "0"), {from, "0"}, {from, "1"}, {to, "1"}, {to, "0"}, {1.0, "0"}})
        setAttributes(opacity.append_child("loext:opacity-stop"),
                      {{"svg:offset", fmt::format("{:.5f}", share)}, {"svg:stop-opacity", there}});
    fill.emplace_back("draw:opacity-name", name);
    return fill;
}

std::vector<TableDocument::StylePart> TableDocument::drawnCell(const CellLook& cell,
                                                               Attributes area,
                                                               const Attributes& lines) {
    const Attributes fill = fillOf(cell);
    area.insert(area.end(), fill.begin(), fill.end());
    area.emplace_back("draw:textarea-vertical-align",
                      heightsInCell.at(static_cast<std::size_t>(cell.down)));
    std::vector<StylePart> parts = {{"loext:graphic-properties", area}};
    if (cell.rotation != 0)
        parts.push_back({"style:table-cell-properties",
                         {{"style:rotation-angle", fmt::format("{}", cell.rotation)}}});
    parts.push_back({"style:paragraph-properties", lines});
    if (cell.text.empty()) parts.push_back({"style:text-properties", lettersOf(cell)});
    return parts;
}

std::vector<TableDocument::StylePart> TableDocument::writtenCell(const CellLook& cell,
                                                                 Attributes area,
                                                                 const Attributes& lines) {
    constexpr std::int32_t upwards = 90;
    if (cell.fill) area.emplace_back("fo:background-color", office::colourText(*cell.fill));
    area.emplace_back("style:vertical-align",
                      heightsInCell.at(static_cast<std::size_t>(cell.down)));
    if (cell.rotation != 0)
        area.emplace_back("style:writing-mode", cell.rotation == upwards ? "bt-lr" : "tb-rl");
    area.insert(area.end(), lines.begin(), lines.end());
    return {{"style:table-cell-properties", area}};
}

std::string TableDocument::paragraphStyle(const CellLook& cell) {
    constexpr std::array<const char*, 4> sides = {"start", "center", "end", "justify"};
    Attributes paragraph = {{"fo:text-align", sides.at(static_cast<std::size_t>(cell.across))},
                            {"fo:margin-left", "0pt"},
                            {"fo:margin-right", "0pt"},
                            {"fo:margin-top", "0pt"},
                            {"fo:margin-bottom", "0pt"},
                            {"fo:line-height", "100%"},
                            // A sheet puts no space between a number and the ideograph behind it.
                            {"style:text-autospace", "none"}};
    // What a text's plain style may say.
    if (kind_ == Kind::Text)
        paragraph.insert(paragraph.end(),
                         {{"fo:text-indent", "0pt"}, {"style:writing-mode", "lr-tb"}});
    return styled("paragraph", {{"style:paragraph-properties", paragraph},
                                {"style:text-properties", lettersOf(cell)}});
}

TableDocument::Attributes TableDocument::lettersOf(const CellLook& cell) const {
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
        set("font-size", points(cell.fontSizePt * scale_));
        set("font-weight", cell.isBold ? "bold" : "normal");
        if (!italicIsApart()) set("font-style", cell.isItalic ? "italic" : "normal");
    }
    // A sheet is drawn so, and wider words would be broken.
    if (kind_ == Kind::Drawing) letters.emplace_back("style:letter-kerning", "true");
    letters.emplace_back("fo:color", office::colourText(cell.fontColour));
    letters.emplace_back("style:text-underline-style", cell.isUnderlined ? "solid" : "none");
    letters.emplace_back("style:text-line-through-style", cell.isStruckOut ? "solid" : "none");
    return letters;
}

void TableDocument::addCell(pugi::xml_node row, const CellLook& cell) {
    if (cell.isCovered) {
        row.append_child("table:covered-table-cell");
        return;
    }
    pugi::xml_node element = row.append_child("table:table-cell");
    setAttributes(element, {{"table:style-name", cellStyle(cell)}});
    if (cell.columns > 1)
        setAttributes(element, {{"table:number-columns-spanned", fmt::format("{}", cell.columns)}});
    if (cell.rows > 1)
        setAttributes(element, {{"table:number-rows-spanned", fmt::format("{}", cell.rows)}});
    addText(element, cell);
}

/// Spaces count here only if they are elements beside the first of several.
void TableDocument::addText(pugi::xml_node cell, const CellLook& look) {
    // LibreOffice gives a paragraph without letters those of the presentation, 18 points, and the
    // row grows by them. A cell without one has the letters of its own style.
    if (kind_ == Kind::Drawing && look.text.empty()) return;
    pugi::xml_node paragraph = cell.append_child("text:p");
    setAttributes(paragraph, {{"text:style-name", paragraphStyle(look)}});
    if (look.isItalic && italicIsApart()) {
        paragraph = paragraph.append_child("text:span");
        setAttributes(paragraph, {{"text:style-name", "Emphasis"}});
    }
    std::string run;
    const auto endRun = [&] {
        if (!run.empty()) paragraph.append_child(pugi::node_pcdata).set_value(run.c_str());
        run.clear();
    };
    bool isAfterSpace = true;
    for (const char letter : look.text) {
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

}  // namespace

std::string tableDrawing(const office::TableLook& table, double scale) {
    return TableDocument(table, scale, TableDocument::Kind::Drawing).written();
}

std::string tableText(const office::TableLook& table, double scale) {
    return TableDocument(table, scale, TableDocument::Kind::Text).written();
}

}  // namespace libreoffice::objects
