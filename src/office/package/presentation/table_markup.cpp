#include "office/package/presentation/table_markup.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <sstream>

#include "office/model/powerpoint/paste.h"
#include "office/package/drawing/table_layout.h"
#include "office/package/presentation/file_deck.h"
#include "office/package/xml.h"
#include "office/text.h"

namespace office::package {

namespace {

constexpr const char* tableSpace = "http://schemas.openxmlformats.org/drawingml/2006/table";
/// The style that adds neither lines nor fills.
constexpr const char* plainStyle = "{2D5ABB26-0587-4C30-8999-92F81FD0307C}";
/// Sizes of characters are hundredths of a point.
constexpr double perPoint = 100;
/// The thinnest line that is drawn at all.
constexpr double thinnestPt = 0.25;

void setRounded(pugi::xml_node node, const char* name, double value) {
    node.append_attribute(name).set_value(std::llround(value));
}

class TableWriter {
public:
    TableWriter(const TableLook& look, double scale, const MeasureText& measure)
        : look_(look),
          scale_(scale),
          measure_(measure) {}

    void write(pugi::xml_node table) {
        table.append_child("a:tblPr").append_child("a:tableStyleId").text().set(plainStyle);
        auto grid = table.append_child("a:tblGrid");
        for (const long long width : roundedLengths(look_.columnWidthsPt, scale_ * emuPerPoint))
            grid.append_child("a:gridCol").append_attribute("w").set_value(width);
        const auto heights = roundedLengths(look_.rowHeightsPt, scale_ * emuPerPoint);
        const std::vector<CellOrigin> origins = cellOrigins(look_, measure_);
        for (std::size_t row = 0; row < heights.size(); ++row) {
            auto element = table.append_child("a:tr");
            element.append_attribute("h").set_value(heights[row]);
            for (std::size_t column = 0; column < columns(); ++column)
                writeCell(element.append_child("a:tc"), origins[row * columns() + column], row,
                          column);
        }
    }

private:
    [[nodiscard]] std::size_t columns() const { return look_.columnWidthsPt.size(); }

    void writeCell(pugi::xml_node element, const CellOrigin& origin, std::size_t row,
                   std::size_t column) const {
        const CellLook& cell = look_.at(origin.row, origin.column);
        const bool isRight = column > origin.column;
        const bool isBelow = row > origin.row;
        if (cell.rows > 1 && !isBelow) element.append_attribute("rowSpan").set_value(cell.rows);
        if (cell.columns > 1 && !isRight)
            element.append_attribute("gridSpan").set_value(cell.columns);
        if (isRight) element.append_attribute("hMerge").set_value("1");
        if (isBelow) element.append_attribute("vMerge").set_value("1");
        const TextFit& fit = origin.fit;
        auto body = element.append_child("a:txBody");
        body.append_child("a:bodyPr");
        body.append_child("a:lstStyle");
        if (isRight || isBelow) {
            writeCharacters(body.append_child("a:p").append_child("a:endParaRPr"), cell, fit);
        } else {
            writeText(body, cell, fit);
        }

        auto properties = element.append_child("a:tcPr");
        setRounded(properties, "marL", fit.leftPt * scale_ * emuPerPoint);
        setRounded(properties, "marR", fit.rightPt * scale_ * emuPerPoint);
        setRounded(properties, "marT", fit.topPt * scale_ * emuPerPoint);
        setRounded(properties, "marB", fit.bottomPt * scale_ * emuPerPoint);
        writeDirection(properties, cell);
        // Of merged cells some programs draw the lines that the first one names, others those of
        // the cells at their edges.
        const bool isLastColumn =
            column + 1 == origin.column + static_cast<std::size_t>(cell.columns);
        const bool isLastRow = row + 1 == origin.row + static_cast<std::size_t>(cell.rows);
        const bool isFirst = !isRight && !isBelow;
        writeLine(properties, "a:lnL", isRight ? CellLine() : cell.left);
        writeLine(properties, "a:lnR", isFirst || isLastColumn ? cell.right : CellLine());
        writeLine(properties, "a:lnT", isBelow ? CellLine() : cell.top);
        writeLine(properties, "a:lnB", isFirst || isLastRow ? cell.bottom : CellLine());
        if (isFirst && cell.falling.widthPt > 0) writeLine(properties, "a:lnTlToBr", cell.falling);
        if (isFirst && cell.rising.widthPt > 0) writeLine(properties, "a:lnBlToTr", cell.rising);
        writeFill(properties, cell);
    }

    static void writeFill(pugi::xml_node properties, const CellLook& cell) {
        if (cell.bar && cell.bar->from < cell.bar->to) {
            writeBar(properties, cell);
        } else if (cell.fill) {
            writeColour(properties, *cell.fill);
        } else {
            properties.append_child("a:noFill");
        }
    }

    /// A bar is a gradient from the left to the right that changes its colour at one place.
    static void writeBar(pugi::xml_node properties, const CellLook& cell) {
        auto gradient = properties.append_child("a:gradFill");
        auto stops = gradient.append_child("a:gsLst");
        const auto addStop = [&](double share, std::optional<std::int32_t> colour) {
            auto stop = stops.append_child("a:gs");
            setRounded(stop, "pos", share * wholeShare);
            const std::string markup = colourMarkup(colour.value_or(0xFFFFFF));
            stop.append_buffer(markup.data(), markup.size());
            if (!colour)
                stop.first_child().append_child("a:alpha").append_attribute("val").set_value("0");
        };
        addStop(0, cell.fill);
        addStop(cell.bar->from, cell.fill);
        addStop(cell.bar->from, cell.bar->leftColour);
        addStop(cell.bar->to, cell.bar->rightColour);
        addStop(cell.bar->to, cell.fill);
        addStop(1, cell.fill);
        auto line = gradient.append_child("a:lin");
        line.append_attribute("ang").set_value("0");
        line.append_attribute("scaled").set_value("0");
    }

    void writeText(pugi::xml_node body, const CellLook& cell, const TextFit& fit) const {
        for (const std::string& line : linesOf(legible(cell.text))) {
            auto paragraph = body.append_child("a:p");
            writeParagraph(paragraph.append_child("a:pPr"), cell, fit);
            if (line.empty()) {
                writeCharacters(paragraph.append_child("a:endParaRPr"), cell, fit);
                continue;
            }
            auto run = paragraph.append_child("a:r");
            writeCharacters(run.append_child("a:rPr"), cell, fit);
            run.append_child("a:t").text().set(line.c_str());
        }
    }

    static void writeParagraph(pugi::xml_node properties, const CellLook& cell,
                               const TextFit& fit) {
        properties.append_attribute("marL").set_value("0");
        properties.append_attribute("indent").set_value("0");
        properties.append_attribute("algn").set_value(alignmentOf(cell));
        if (fit.spacing < 1)
            setRounded(properties.append_child("a:lnSpc").append_child("a:spcPct"), "val",
                       fit.spacing * wholeShare);
        properties.append_child("a:buNone");
    }

    static const char* alignmentOf(const CellLook& cell) {
        switch (alignmentAlong(cell)) {
            case CellLook::Across::Centre:
                return "ctr";
            case CellLook::Across::Right:
                return "r";
            case CellLook::Across::Justified:
                return "just";
            default:
                return "l";
        }
    }

    static void writeDirection(pugi::xml_node properties, const CellLook& cell) {
        if (cell.rotation != 0)
            properties.append_attribute("vert").set_value(cell.rotation == 90 ? "vert270" : "vert");
        properties.append_attribute("anchor").set_value(anchorOf(cell));
    }

    static const char* anchorOf(const CellLook& cell) {
        switch (alignmentBeside(cell)) {
            case CellLook::Down::Top:
                return "t";
            case CellLook::Down::Middle:
                return "ctr";
            default:
                return "b";
        }
    }

    void writeCharacters(pugi::xml_node properties, const CellLook& cell,
                         const TextFit& fit) const {
        setRounded(properties, "sz", std::max(fit.sizePt * scale_, smallestSizePt) * perPoint);
        properties.append_attribute("b").set_value(cell.isBold ? "1" : "0");
        properties.append_attribute("i").set_value(cell.isItalic ? "1" : "0");
        const char* const underline = cell.isUnderlinedTwice ? "dbl" : "sng";
        properties.append_attribute("u").set_value(cell.isUnderlined ? underline : "none");
        properties.append_attribute("strike").set_value(cell.isStruckOut ? "sngStrike"
                                                                         : "noStrike");
        writeColour(properties, cell.fontColour);
        const auto setFont = [&](const char* script) {
            properties.append_child(script)
                .append_attribute("typeface")
                .set_value(legible(cell.fontName).c_str());
        };
        setFont("a:latin");
        // What a Western font has no characters for is left to the theme's.
        if (!cell.asianFontName.empty()) return;
        setFont("a:ea");
        setFont("a:cs");
    }

    static void writeColour(pugi::xml_node holder, std::int32_t colour) {
        const std::string markup = colourMarkup(colour);
        holder.append_child("a:solidFill").append_buffer(markup.data(), markup.size());
    }

    /// Where there is none that is said too: some programs draw the line of the other side else.
    static void writeLine(pugi::xml_node properties, const char* side, const CellLine& line) {
        auto element = properties.append_child(side);
        setRounded(element, "w", std::max(line.widthPt, thinnestPt) * emuPerPoint);
        element.append_attribute("cap").set_value("flat");
        element.append_attribute("cmpd").set_value(line.style == CellLine::Style::Double ? "dbl"
                                                                                         : "sng");
        if (line.widthPt <= 0) {
            element.append_child("a:noFill");
            return;
        }
        writeColour(element, line.colour);
        element.append_child("a:prstDash").append_attribute("val").set_value(dashOf(line.style));
    }

    static const char* dashOf(CellLine::Style style) {
        switch (style) {
            case CellLine::Style::Dashed:
                return "sysDash";
            case CellLine::Style::Dotted:
                return "sysDot";
            default:
                return "solid";
        }
    }

    const TableLook& look_;
    double scale_;
    const MeasureText& measure_;
};

void stretch(pugi::xml_attribute length, double factor) {
    if (length) length.set_value(std::llround(length.as_double() * factor));
}

}  // namespace

std::string tableMarkup(const TableLook& look, double scale, const MeasureText& measure) {
    pugi::xml_document document;
    TableWriter(look, scale, measure).write(document.append_child("a:tbl"));
    std::ostringstream markup;
    document.save(markup, "", pugi::format_raw | pugi::format_no_declaration);
    return markup.str();
}

FileShapePtr pasteTable(FileSlide& slide, const Copied& copied) {
    TableLook look = copied.table();
    look.leaveTextsToBars();
    const powerpoint::PastePlace place =
        powerpoint::pastePlaceFor({look.widthPt(), look.heightPt()}, slide.deck(), slide);
    return slide.addFrame("Table", "noGrp", place, tableSpace,
                          tableMarkup(look, place.scale, slide.deck().measure()));
}

pugi::xml_node tableIn(pugi::xml_node shape) {
    const auto graphic = childNamed(shape, ns::drawing, "graphic");
    return childNamed(childNamed(graphic, ns::drawing, "graphicData"), ns::drawing, "tbl");
}

void stretchTable(pugi::xml_node table, double across, double down) {
    for (const auto& column :
         childrenNamed(childNamed(table, ns::drawing, "tblGrid"), ns::drawing, "gridCol"))
        stretch(column.attribute("w"), across);
    const double ofText = std::min(across, down);
    for (const auto& row : childrenNamed(table, ns::drawing, "tr")) {
        stretch(row.attribute("h"), down);
        for (const auto& cell : childrenNamed(row, ns::drawing, "tc")) {
            const auto properties = childNamed(cell, ns::drawing, "tcPr");
            for (const char* margin : {"marL", "marR", "marT", "marB"})
                stretch(properties.attribute(margin), ofText);
        }
    }
    visitBelow(table, [&](pugi::xml_node node) {
        auto size = node.attribute("sz");
        if (size && (isNamed(node, ns::drawing, "rPr") || isNamed(node, ns::drawing, "endParaRPr")))
            size.set_value(std::max(std::llround(size.as_double() * ofText),
                                    std::llround(smallestSizePt * perPoint)));
    });
}

}  // namespace office::package
