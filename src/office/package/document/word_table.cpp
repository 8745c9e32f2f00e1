#include "office/package/document/word_table.h"

#include <pugixml.hpp>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "office/package/document/paragraph.h"
#include "office/package/drawing/drawing.h"
#include "office/package/drawing/table_layout.h"
#include "office/package/xml.h"
#include "office/text.h"

namespace office::package {

namespace {

/// Sizes of characters are half points, widths of lines eighths, distances of lines 240 to one.
constexpr double halfPoints = 2;
constexpr double eighths = 8;
constexpr double perLine = 240;
/// What Word takes as the width of a line.
constexpr double thinnestLine = 2;
constexpr double thickestLine = 96;

pugi::xml_node add(pugi::xml_node parent, const char* name) {
    return parent.append_child(name);
}

pugi::xml_node addValue(pugi::xml_node parent, const char* name, const std::string& value) {
    auto made = parent.append_child(name);
    made.append_attribute("w:val").set_value(value.c_str());
    return made;
}

void addWidth(pugi::xml_node parent, const char* name, long long twips) {
    auto made = parent.append_child(name);
    made.append_attribute("w:w").set_value(twips);
    made.append_attribute("w:type").set_value("dxa");
}

long long twips(double points) {
    return std::llround(points * twipsPerPoint);
}

class WordTableWriter {
public:
    WordTableWriter(const TableLook& look, double scale, const MeasureText& measure)
        : look_(look),
          scale_(scale),
          measure_(measure),
          widths_(roundedLengths(look.columnWidthsPt, scale * twipsPerPoint)) {}

    void write(pugi::xml_node table) {
        long long all = 0;
        for (const long long width : widths_) all += width;
        auto properties = add(table, "w:tblPr");
        addWidth(properties, "w:tblW", all);
        addWidth(properties, "w:tblInd", 0);
        add(properties, "w:tblLayout").append_attribute("w:type").set_value("fixed");
        auto margins = add(properties, "w:tblCellMar");
        for (const char* const side : {"w:top", "w:left", "w:bottom", "w:right"})
            addWidth(margins, side, 0);
        auto grid = add(table, "w:tblGrid");
        for (const long long width : widths_)
            add(grid, "w:gridCol").append_attribute("w:w").set_value(width);
        const auto heights = roundedLengths(look_.rowHeightsPt, scale_ * twipsPerPoint);
        const auto origins = cellOrigins(look_, measure_);
        for (std::size_t row = 0; row < heights.size(); ++row) {
            auto element = add(table, "w:tr");
            auto rowProperties = add(element, "w:trPr");
            add(rowProperties, "w:cantSplit");
            auto height = addValue(rowProperties, "w:trHeight", std::to_string(heights[row]));
            height.append_attribute("w:hRule").set_value("atLeast");
            for (std::size_t column = 0; column < widths_.size(); ++column) {
                const CellOrigin& origin = origins[row * widths_.size() + column];
                if (origin.column == column) writeCell(add(element, "w:tc"), origin, row);
            }
        }
    }

private:
    void writeCell(pugi::xml_node element, const CellOrigin& origin, std::size_t row) const {
        const CellLook& cell = look_.at(origin.row, origin.column);
        const bool isBelow = row > origin.row;
        const TextFit& fit = origin.fit;
        auto properties = add(element, "w:tcPr");
        long long width = 0;
        for (std::size_t i = 0; i < static_cast<std::size_t>(cell.columns); ++i)
            width += widths_.at(origin.column + i);
        addWidth(properties, "w:tcW", width);
        if (cell.columns > 1) addValue(properties, "w:gridSpan", std::to_string(cell.columns));
        if (cell.rows > 1) addValue(properties, "w:vMerge", isBelow ? "continue" : "restart");
        const bool isLastRow = row + 1 == origin.row + static_cast<std::size_t>(cell.rows);
        auto borders = add(properties, "w:tcBorders");
        writeLine(borders, "w:top", isBelow ? CellLine() : cell.top);
        writeLine(borders, "w:left", cell.left);
        writeLine(borders, "w:bottom", isLastRow ? cell.bottom : CellLine());
        writeLine(borders, "w:right", cell.right);
        if (!isBelow && cell.falling.widthPt > 0) writeLine(borders, "w:tl2br", cell.falling);
        if (!isBelow && cell.rising.widthPt > 0) writeLine(borders, "w:tr2bl", cell.rising);
        if (cell.fill) {
            auto shade = addValue(properties, "w:shd", "clear");
            shade.append_attribute("w:color").set_value("auto");
            shade.append_attribute("w:fill").set_value(hexColour(*cell.fill).c_str());
        }
        auto margins = add(properties, "w:tcMar");
        addWidth(margins, "w:top", twips(fit.topPt * scale_));
        addWidth(margins, "w:left", twips(fit.leftPt * scale_));
        addWidth(margins, "w:bottom", twips(fit.bottomPt * scale_));
        addWidth(margins, "w:right", twips(fit.rightPt * scale_));
        if (cell.rotation != 0)
            addValue(properties, "w:textDirection", cell.rotation == 90 ? "btLr" : "tbRl");
        addValue(properties, "w:vAlign", anchorOf(cell));
        writeText(add(element, "w:p"), isBelow ? std::string() : cell.text, cell, fit);
    }

    void writeText(pugi::xml_node paragraph, const std::string& text, const CellLook& cell,
                   const TextFit& fit) const {
        auto properties = add(paragraph, "w:pPr");
        // The plain style may say each of these, and say some of it in ways that go ahead of twips.
        addValue(properties, "w:bidi", "0");
        auto spacing = add(properties, "w:spacing");
        for (const std::string side : {"w:before", "w:after"}) {
            for (const char* const way : {"", "Lines", "Autospacing"})
                spacing.append_attribute((side + way).c_str()).set_value("0");
        }
        spacing.append_attribute("w:line").set_value(std::llround(perLine * fit.spacing));
        spacing.append_attribute("w:lineRule").set_value("auto");
        auto indent = add(properties, "w:ind");
        for (const std::string side : {"w:left", "w:right", "w:firstLine"}) {
            for (const char* const way : {"", "Chars"})
                indent.append_attribute((side + way).c_str()).set_value("0");
        }
        addValue(properties, "w:jc", alignmentOf(cell));
        writeCharacters(add(properties, "w:rPr"), cell, fit);
        if (text.empty()) return;
        auto run = add(paragraph, "w:r");
        writeCharacters(add(run, "w:rPr"), cell, fit);
        bool isFirst = true;
        for (const std::string& line : linesOf(legible(text))) {
            if (!isFirst) add(run, "w:br");
            isFirst = false;
            auto words = add(run, "w:t");
            words.append_attribute("xml:space").set_value("preserve");
            words.text().set(line.c_str());
        }
    }

    void writeCharacters(pugi::xml_node properties, const CellLook& cell,
                         const TextFit& fit) const {
        auto fonts = add(properties, "w:rFonts");
        for (const char* const script : {"w:ascii", "w:hAnsi", "w:eastAsia", "w:cs"})
            fonts.append_attribute(script).set_value(legible(cell.fontName).c_str());
        const auto flag = [&](const char* name, bool isOn) {
            addValue(properties, name, isOn ? "1" : "0");
        };
        for (const char* const script : {"w:b", "w:bCs"}) flag(script, cell.isBold);
        for (const char* const script : {"w:i", "w:iCs"}) flag(script, cell.isItalic);
        flag("w:strike", cell.isStruckOut);
        addValue(properties, "w:color", hexColour(cell.fontColour));
        const std::string size = std::to_string(
            std::llround(std::max(fit.sizePt * scale_, smallestSizePt) * halfPoints));
        addValue(properties, "w:sz", size);
        addValue(properties, "w:szCs", size);
        const char* const underline = cell.isUnderlinedTwice ? "double" : "single";
        addValue(properties, "w:u", cell.isUnderlined ? underline : "none");
    }

    static void writeLine(pugi::xml_node borders, const char* side, const CellLine& line) {
        if (line.widthPt <= 0) {
            addValue(borders, side, "nil");
            return;
        }
        auto made = addValue(borders, side, nameOf(line.style));
        // A double line is as wide as the two and what is between them; Word counts one of these.
        const double share = line.style == CellLine::Style::Double ? 1.0 / 3 : 1;
        made.append_attribute("w:sz").set_value(
            std::llround(std::clamp(line.widthPt * share * eighths, thinnestLine, thickestLine)));
        made.append_attribute("w:space").set_value("0");
        made.append_attribute("w:color").set_value(hexColour(line.colour).c_str());
    }

    static const char* nameOf(CellLine::Style style) {
        switch (style) {
            case CellLine::Style::Dashed:
                return "dashed";
            case CellLine::Style::Dotted:
                return "dotted";
            case CellLine::Style::Double:
                return "double";
            default:
                return "single";
        }
    }

    static const char* alignmentOf(const CellLook& cell) {
        switch (alignmentAlong(cell)) {
            case CellLook::Across::Centre:
                return "center";
            case CellLook::Across::Right:
                return "right";
            case CellLook::Across::Justified:
                return "both";
            default:
                return "left";
        }
    }

    static const char* anchorOf(const CellLook& cell) {
        switch (alignmentBeside(cell)) {
            case CellLook::Down::Top:
                return "top";
            case CellLook::Down::Middle:
                return "center";
            default:
                return "bottom";
        }
    }

    const TableLook& look_;
    double scale_;
    const MeasureText& measure_;
    std::vector<long long> widths_;
};

}  // namespace

std::string wordTable(const TableLook& look, double roomPt, const MeasureText& measure) {
    const double widthPt = look.widthPt();
    const double scale = widthPt > roomPt && roomPt > 0 ? roomPt / widthPt : 1;
    pugi::xml_document document;
    WordTableWriter(look, scale, measure).write(document.append_child("w:tbl"));
    std::ostringstream markup;
    document.save(markup, "", pugi::format_raw | pugi::format_no_declaration);
    return markup.str();
}

}  // namespace office::package
