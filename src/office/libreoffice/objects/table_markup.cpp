#include "office/libreoffice/objects/table_markup.h"

#include <fmt/format.h>
#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <utility>
#include <vector>

namespace libreoffice::objects {

namespace {

using office::CellLine;
using office::CellLook;
using office::TableLook;

/// Between a cell's border and its text, as Excel draws it.
constexpr double paddingPt = 2;

std::string points(double length) {
    return fmt::format("{:.3f}pt", length);
}

std::string colour(std::int32_t blueGreenRed) {
    const auto value = static_cast<std::uint32_t>(blueGreenRed);
    return fmt::format("#{:02x}{:02x}{:02x}", value & 0xFFU, value >> 8U & 0xFFU,
                       value >> 16U & 0xFFU);
}

void setAttributes(pugi::xml_node node,
                   std::initializer_list<std::pair<const char*, std::string>> attributes) {
    for (const auto& [name, value] : attributes)
        node.append_attribute(name).set_value(value.c_str());
}

/// Which lines of cells (columns or rows) a table of LibreOffice has: merged cells may not hide a
/// whole line, since LibreOffice takes such a line out as soon as they are merged, and merges what
/// follows in wrong places.
class ShownLines {
public:
    explicit ShownLines(const TableLook& table)
        : columns_(table.columnWidthsPt.size()),
          owners_(table.cells.size()) {
        const std::size_t rows = table.rowHeightsPt.size();
        for (std::size_t at = 0; at < owners_.size(); ++at) {
            const CellLook& cell = table.cells[at];
            if (cell.isCovered) continue;
            const std::size_t right = std::min(columns_, at % columns_ + unsignedOf(cell.columns));
            const std::size_t bottom = std::min(rows, at / columns_ + unsignedOf(cell.rows));
            for (std::size_t row = at / columns_; row < bottom; ++row) {
                for (std::size_t column = at % columns_; column < right; ++column)
                    owners_[row * columns_ + column] = at;
            }
        }
        for (std::size_t column = 0; column < columns_; ++column)
            columnIsShown_.push_back(column == 0 || differs(column, columns_, rows, 1));
        for (std::size_t row = 0; row < rows; ++row)
            rowIsShown_.push_back(row == 0 || differs(row * columns_, 1, columns_, columns_));
    }

    [[nodiscard]] bool column(std::size_t at) const { return columnIsShown_[at]; }
    [[nodiscard]] bool row(std::size_t at) const { return rowIsShown_[at]; }
    /// How many of the columns or rows are shown that a cell spans from there on.
    [[nodiscard]] std::ptrdiff_t columns(std::size_t from, std::int32_t count) const {
        return shown(columnIsShown_, from, count);
    }
    [[nodiscard]] std::ptrdiff_t rows(std::size_t from, std::int32_t count) const {
        return shown(rowIsShown_, from, count);
    }
    /// The lengths of the shown lines, with those of the hidden ones behind them.
    [[nodiscard]] std::vector<double> widths(const TableLook& table) const {
        return gathered(columnIsShown_, table.columnWidthsPt);
    }
    [[nodiscard]] std::vector<double> heights(const TableLook& table) const {
        return gathered(rowIsShown_, table.rowHeightsPt);
    }

private:
    [[nodiscard]] static std::size_t unsignedOf(std::int32_t count) {
        return static_cast<std::size_t>(std::max(1, count));
    }

    /// Whether a line has a cell that isn't one with its neighbour in the line before.
    [[nodiscard]] bool differs(std::size_t first, std::size_t step, std::size_t count,
                               std::size_t toLineBefore) const {
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t at = first + i * step;
            if (owners_[at] != owners_[at - toLineBefore]) return true;
        }
        return false;
    }

    [[nodiscard]] static std::ptrdiff_t shown(const std::vector<bool>& lines, std::size_t from,
                                              std::int32_t count) {
        const std::size_t end = std::min(lines.size(), from + unsignedOf(count));
        return std::count(lines.begin() + static_cast<std::ptrdiff_t>(from),
                          lines.begin() + static_cast<std::ptrdiff_t>(end), true);
    }

    [[nodiscard]] static std::vector<double> gathered(const std::vector<bool>& lines,
                                                      const std::vector<double>& lengths) {
        std::vector<double> all;
        for (std::size_t i = 0; i < lengths.size(); ++i) {
            if (lines[i]) all.push_back(0);
            all.back() += lengths[i];
        }
        return all;
    }

    std::size_t columns_;
    /// Of each cell the one that it is merged into, or itself.
    std::vector<std::size_t> owners_;
    std::vector<bool> columnIsShown_;
    std::vector<bool> rowIsShown_;
};

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

    /// The name of the style of a family that is made of these parts.
    [[nodiscard]] std::string styled(const char* family, const std::vector<StylePart>& parts);
    /// Where the table goes.
    [[nodiscard]] pugi::xml_node drawing(const TableLook& table);
    [[nodiscard]] pugi::xml_node text(const TableLook& table);
    void addRoot(const char* name);
    [[nodiscard]] std::string cellStyle(const CellLook& cell);
    [[nodiscard]] static std::vector<StylePart> drawnCell(const CellLook& cell, Attributes area,
                                                          const Attributes& lines);
    [[nodiscard]] static std::vector<StylePart> writtenCell(const CellLook& cell, Attributes area,
                                                            const Attributes& lines);
    [[nodiscard]] std::string paragraphStyle(const CellLook& cell);
    /// LibreOffice writes a .docx that is not valid if the end of a paragraph says anything of
    /// this.
    [[nodiscard]] bool italicIsApart() const { return kind_ == Kind::Text; }
    [[nodiscard]] std::string line(const CellLine& line) const;
    void addCell(pugi::xml_node row, const CellLook& cell, std::ptrdiff_t columns,
                 std::ptrdiff_t rows);
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
    pugi::xml_node grid = kind == Kind::Drawing ? drawing(table) : text(table);
    const ShownLines shown(table);
    for (const double width : shown.widths(table)) {
        const auto style = styled(
            "table-column",
            {{"style:table-column-properties", {{"style:column-width", points(width * scale)}}}});
        setAttributes(grid.append_child("table:table-column"), {{"table:style-name", style}});
    }
    const std::vector<double> heights = shown.heights(table);
    auto height = heights.begin();
    // A text has room for a row that another font makes higher.
    const char* rowHeight = kind == Kind::Drawing ? "style:row-height" : "style:min-row-height";
    for (std::size_t row = 0; row < table.rowHeightsPt.size(); ++row) {
        if (!shown.row(row)) continue;
        const auto style =
            styled("table-row",
                   {{"style:table-row-properties", {{rowHeight, points(*height++ * scale)}}}});
        pugi::xml_node line = grid.append_child("table:table-row");
        setAttributes(line, {{"table:style-name", style}});
        for (std::size_t column = 0; column < table.columnWidthsPt.size(); ++column) {
            if (!shown.column(column)) continue;
            const CellLook& cell = table.at(row, column);
            addCell(line, cell, shown.columns(column, cell.columns), shown.rows(row, cell.rows));
        }
    }
}

void TableDocument::addRoot(const char* name) {
    pugi::xml_node root = document_.append_child(name);
    for (const auto& [prefix, space] : nameSpaces)
        setAttributes(root, {{fmt::format("xmlns:{}", prefix).c_str(), space}});
    setAttributes(root, {{fmt::format("xmlns:{}", extensions.first).c_str(), extensions.second},
                         {"office:version", "1.3"}});
    styles_ = root.append_child("office:automatic-styles");
}

pugi::xml_node TableDocument::drawing(const TableLook& table) {
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
    pugi::xml_node frame = page.append_child("draw:frame");
    setAttributes(frame, {{"svg:x", "0pt"},
                          {"svg:y", "0pt"},
                          {"svg:width", points(table.widthPt() * scale_)},
                          {"svg:height", points(table.heightPt() * scale_)}});
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
                       colour(line.colour));
}

std::string TableDocument::cellStyle(const CellLook& cell) {
    Attributes area;
    const bool fromRight = cell.across == CellLook::Across::Right;
    const double indent = paddingPt + cell.indentPt;
    area.emplace_back("fo:padding-left", points((fromRight ? paddingPt : indent) * scale_));
    area.emplace_back("fo:padding-right", points((fromRight ? indent : paddingPt) * scale_));
    for (const char* side : {"top", "bottom"})
        area.emplace_back(fmt::format("fo:padding-{}", side), "0pt");
    const Attributes lines = {{"fo:border-left", line(cell.left)},
                              {"fo:border-right", line(cell.right)},
                              {"fo:border-top", line(cell.top)},
                              {"fo:border-bottom", line(cell.bottom)}};
    return styled("table-cell", kind_ == Kind::Drawing ? drawnCell(cell, std::move(area), lines)
                                                       : writtenCell(cell, std::move(area), lines));
}

constexpr std::array<const char*, 3> heightsInCell = {"top", "middle", "bottom"};

std::vector<TableDocument::StylePart> TableDocument::drawnCell(const CellLook& cell,
                                                               Attributes area,
                                                               const Attributes& lines) {
    area.emplace_back("draw:fill", cell.fill ? "solid" : "none");
    if (cell.fill) area.emplace_back("draw:fill-color", colour(*cell.fill));
    area.emplace_back("draw:textarea-vertical-align",
                      heightsInCell.at(static_cast<std::size_t>(cell.down)));
    std::vector<StylePart> parts = {{"loext:graphic-properties", area}};
    if (cell.rotation != 0)
        parts.push_back({"style:table-cell-properties",
                         {{"style:rotation-angle", fmt::format("{}", cell.rotation)}}});
    parts.push_back({"style:paragraph-properties", lines});
    return parts;
}

std::vector<TableDocument::StylePart> TableDocument::writtenCell(const CellLook& cell,
                                                                 Attributes area,
                                                                 const Attributes& lines) {
    constexpr std::int32_t upwards = 90;
    if (cell.fill) area.emplace_back("fo:background-color", colour(*cell.fill));
    area.emplace_back("style:vertical-align",
                      heightsInCell.at(static_cast<std::size_t>(cell.down)));
    if (cell.rotation != 0)
        area.emplace_back("style:writing-mode", cell.rotation == upwards ? "bt-lr" : "tb-rl");
    area.insert(area.end(), lines.begin(), lines.end());
    return {{"style:table-cell-properties", area}};
}

std::string TableDocument::paragraphStyle(const CellLook& cell) {
    constexpr std::array<const char*, 4> sides = {"start", "center", "end", "justify"};
    const Attributes paragraph = {
        {"fo:text-align", sides.at(static_cast<std::size_t>(cell.across))},
        {"fo:margin-left", "0pt"},
        {"fo:margin-right", "0pt"},
        {"fo:margin-top", "0pt"},
        {"fo:margin-bottom", "0pt"},
        {"fo:line-height", "100%"}};
    Attributes letters;
    for (const char* script : {"", "-asian", "-complex"}) {
        const char* space = *script == '\0' ? "fo" : "style";
        const auto set = [&](const char* name, const std::string& value) {
            letters.emplace_back(fmt::format("{}:{}{}", space, name, script), value);
        };
        if (!cell.fontName.empty()) set("font-family", fmt::format("'{}'", cell.fontName));
        set("font-size", points(cell.fontSizePt * scale_));
        set("font-weight", cell.isBold ? "bold" : "normal");
        if (!italicIsApart()) set("font-style", cell.isItalic ? "italic" : "normal");
    }
    letters.emplace_back("fo:color", colour(cell.fontColour));
    letters.emplace_back("style:text-underline-style", cell.isUnderlined ? "solid" : "none");
    letters.emplace_back("style:text-line-through-style", cell.isStruckOut ? "solid" : "none");
    return styled("paragraph",
                  {{"style:paragraph-properties", paragraph}, {"style:text-properties", letters}});
}

void TableDocument::addCell(pugi::xml_node row, const CellLook& cell, std::ptrdiff_t columns,
                            std::ptrdiff_t rows) {
    if (cell.isCovered) {
        row.append_child("table:covered-table-cell");
        return;
    }
    pugi::xml_node element = row.append_child("table:table-cell");
    setAttributes(element, {{"table:style-name", cellStyle(cell)}});
    if (columns > 1)
        setAttributes(element, {{"table:number-columns-spanned", fmt::format("{}", columns)}});
    if (rows > 1) setAttributes(element, {{"table:number-rows-spanned", fmt::format("{}", rows)}});
    addText(element, cell);
}

/// Spaces count here only if they are elements beside the first of several.
void TableDocument::addText(pugi::xml_node cell, const CellLook& look) {
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
