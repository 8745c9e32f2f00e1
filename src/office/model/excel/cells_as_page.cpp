#include "office/model/excel/cells_as_page.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <tuple>

#include "office/colour.h"
#include "office/text.h"
#include "office/units.h"

namespace office::model::excel {

namespace {

/// A length as style sheets have it, in pixels of an inch's 96th: as many as are needed, and no
/// trailing noughts.
std::string pixels(double points) {
    std::string text = fmt::format("{:.2f}", points * pixelsPerPoint);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text + "px";
}

/// What a reader without a font is to see in its place.
const char* kindOfFont(std::string_view name) {
    constexpr std::array fixed = {"Courier", "Consolas", "Lucida Console", " Mono"};
    constexpr std::array serifs = {"Times", "Georgia",  "Cambria",   "Garamond",    "Constantia",
                                   "Book",  "Palatino", "Century S", "Baskerville", " Serif"};
    const auto holdsOneOf = [&](const auto& words) {
        return std::any_of(words.begin(), words.end(), [&](const char* word) {
            return name.find(word) != std::string_view::npos;
        });
    };
    if (holdsOneOf(fixed)) return "monospace";
    const bool hasSerifs = holdsOneOf(serifs) || name == "Century";
    return hasSerifs && name.find("Sans Serif") == std::string_view::npos ? "serif" : "sans-serif";
}

/// The name of a font comes from the workbook, and may hold what ends a text in a style, or what
/// stands for that in an attribute.
std::string fontFamily(const std::string& name) {
    std::string plain;
    for (const char sign : name) {
        const auto code = static_cast<unsigned char>(sign);
        if (sign == '&')
            plain += "&amp;";
        else if (code >= 0x20 &&
                 std::string_view("'\"\\;{}<>").find(sign) == std::string_view::npos)
            plain += sign;
    }
    return plain.empty() ? "sans-serif" : fmt::format("'{}',{}", plain, kindOfFont(plain));
}

/// What all cells of a table have alike unless they say otherwise.
struct CommonFont {
    std::string name;
    double sizePt = 0;
    std::int32_t colour = 0;

    bool operator<(const CommonFont& other) const {
        return std::tie(name, sizePt, colour) < std::tie(other.name, other.sizePt, other.colour);
    }
};

CommonFont fontOf(const CellLook& cell) {
    return {cell.fontName, cell.fontSizePt, cell.fontColour};
}

CommonFont commonFont(const TableLook& look) {
    std::map<CommonFont, int> counts;
    for (const CellLook& cell : look.cells)
        if (!cell.isCovered && !cell.text.empty()) ++counts[fontOf(cell)];
    const auto most =
        std::max_element(counts.begin(), counts.end(),
                         [](const auto& one, const auto& two) { return one.second < two.second; });
    return most == counts.end() ? fontOf(look.cells.front()) : most->first;
}

std::string fontStyle(const CommonFont& font) {
    return fmt::format("font-family:{};font-size:{};color:{}", fontFamily(font.name),
                       pixels(font.sizePt), colourText(font.colour));
}

std::string lineStyle(const char* side, const CellLine& line) {
    if (line.widthPt <= 0) return {};
    // Thinner ones would vanish on some screens, and a double one needs room between its two.
    constexpr double thinnestPt = 0.75;
    constexpr double thinnestDoublePt = 2.25;
    static constexpr const char* styles[] = {"solid", "dashed", "dotted", "double"};
    const double width = std::max(
        line.widthPt, line.style == CellLine::Style::Double ? thinnestDoublePt : thinnestPt);
    return fmt::format("border-{}:{} {} {};", side, pixels(width),
                       styles[static_cast<int>(line.style)], colourText(line.colour));
}

std::string barStyle(const CellBar& bar) {
    const double width = bar.to - bar.from;
    if (width <= 0) return {};
    // A place in per cent is that of the same share of the bar.
    const double place = width < 1 ? bar.from / (1 - width) : 0;
    return fmt::format(
        "background-image:linear-gradient(to right,{},{});background-repeat:no-repeat;"
        "background-size:{:.4g}% calc(100% - 4px);background-position:{:.4g}% 50%;",
        colourText(bar.leftColour), colourText(bar.rightColour), width * 100, place * 100);
}

std::string acrossStyle(const CellLook& cell) {
    switch (cell.across) {
        case CellLook::Across::Left:
            return cell.indentPt > 0
                       ? fmt::format("text-align:left;padding-left:{};", pixels(cell.indentPt))
                       : std::string();
        case CellLook::Across::Centre:
            return "text-align:center;";
        case CellLook::Across::Right:
            return cell.indentPt > 0
                       ? fmt::format("text-align:right;padding-right:{};", pixels(cell.indentPt))
                       : "text-align:right;";
        case CellLook::Across::Justified:
            return "text-align:justify;";
    }
    return {};
}

std::string textStyle(const CellLook& cell, const CommonFont& common) {
    std::string style;
    if (cell.fontName != common.name) style += "font-family:" + fontFamily(cell.fontName) + ";";
    if (cell.fontSizePt != common.sizePt) style += "font-size:" + pixels(cell.fontSizePt) + ";";
    if (cell.fontColour != common.colour) style += "color:" + colourText(cell.fontColour) + ";";
    if (cell.isBold) style += "font-weight:bold;";
    if (cell.isItalic) style += "font-style:italic;";
    if (cell.isUnderlined || cell.isStruckOut) {
        // A style is one for both lines.
        const bool isDouble = cell.isUnderlined && cell.isUnderlinedTwice && !cell.isStruckOut;
        style += fmt::format("text-decoration:{}{}{};", cell.isUnderlined ? "underline" : "",
                             cell.isStruckOut ? " line-through" : "", isDouble ? " double" : "");
    }
    style += acrossStyle(cell);
    if (cell.down == CellLook::Down::Top) style += "vertical-align:top;";
    if (cell.down == CellLook::Down::Middle) style += "vertical-align:middle;";
    return style;
}

std::string cellStyle(const CellLook& cell, const CommonFont& common) {
    std::string style = cell.text.empty() ? std::string() : textStyle(cell, common);
    if (cell.fill) style += "background-color:" + colourText(*cell.fill) + ";";
    if (cell.bar) style += barStyle(*cell.bar);
    return style + lineStyle("left", cell.left) + lineStyle("right", cell.right) +
           lineStyle("top", cell.top) + lineStyle("bottom", cell.bottom);
}

std::string cellText(const CellLook& cell, double heightPt) {
    std::string text = escapeMarkup(cell.text);
    if (cell.rotation == 0 || cell.text.empty()) return text;
    return fmt::format("<div{} style=\"max-height:{}\">{}</div>",
                       cell.rotation == 90 ? " class=\"upwards\"" : "", pixels(heightPt), text);
}

std::string cellMarkup(const CellLook& cell, double heightPt, const CommonFont& common) {
    std::string markup = "<td";
    if (cell.columns > 1) markup += fmt::format(" colspan=\"{}\"", cell.columns);
    if (cell.rows > 1) markup += fmt::format(" rowspan=\"{}\"", cell.rows);
    if (cell.wraps && !cell.text.empty()) markup += " class=\"wraps\"";
    std::string style = cellStyle(cell, common);
    if (!style.empty()) {
        style.pop_back();
        markup += " style=\"" + style + "\"";
    }
    return markup + ">" + cellText(cell, heightPt) + "</td>";
}

double heightOf(const TableLook& look, std::size_t row, std::int32_t rows) {
    double all = 0;
    for (std::size_t i = row; i < row + static_cast<std::size_t>(rows); ++i)
        all += look.rowHeightsPt[i];
    return all;
}

std::string tableMarkup(const TableLook& look) {
    const CommonFont common = commonFont(look);
    std::string markup = fmt::format("<table style=\"width:{};{}\">\n<colgroup>",
                                     pixels(look.widthPt()), fontStyle(common));
    for (const double width : look.columnWidthsPt)
        markup += fmt::format("<col style=\"width:{}\">", pixels(width));
    markup += "</colgroup>\n<tbody>\n";
    for (std::size_t row = 0; row < look.rowHeightsPt.size(); ++row) {
        markup += fmt::format("<tr style=\"height:{}\">", pixels(look.rowHeightsPt[row]));
        for (std::size_t column = 0; column < look.columnWidthsPt.size(); ++column) {
            const CellLook& cell = look.at(row, column);
            if (!cell.isCovered) markup += cellMarkup(cell, heightOf(look, row, cell.rows), common);
        }
        markup += "</tr>\n";
    }
    return markup + "</tbody>\n</table>\n";
}

bool isSeen(const CellLook& cell) {
    const auto isLine = [](const CellLine& line) { return line.widthPt > 0; };
    return !cell.text.empty() || cell.fill || cell.bar || isLine(cell.left) || isLine(cell.right) ||
           isLine(cell.top) || isLine(cell.bottom);
}

std::string sizeStyle(const Box& box) {
    return fmt::format("width:{};height:{}", pixels(box.width), pixels(box.height));
}

std::string imageMarkup(const PagePicture& picture, const std::string& style) {
    return fmt::format("<img src=\"{}\" alt=\"{}\" style=\"{}\">", escapeMarkup(picture.address),
                       escapeMarkup(picture.name), style);
}

}  // namespace

bool showsCells(const TableLook& look) {
    return std::any_of(look.cells.begin(), look.cells.end(), isSeen);
}

std::string cellsAsPage(const TableLook& look, const std::vector<PagePicture>& charts) {
    std::string markup = showsCells(look) ? tableMarkup(look)
                                          : fmt::format("<div style=\"height:{}\"></div>\n",
                                                        pixels(look.heightPt()));
    if (charts.empty()) return markup;
    markup += "<div class=\"charts\">";
    for (const PagePicture& chart : charts) {
        markup += imageMarkup(
            chart, fmt::format("left:{};top:{};{}", pixels(chart.box.left - look.leftPt),
                               pixels(chart.box.top - look.topPt), sizeStyle(chart.box)));
    }
    return markup + "</div>\n";
}

std::string pictureAsPage(const PagePicture& picture) {
    return imageMarkup(picture, sizeStyle(picture.box)) + "\n";
}

std::string pageItem(std::string_view id, std::string_view title, double widthPt,
                     std::string_view markup) {
    const std::string heading =
        title.empty() ? std::string() : fmt::format("<h2>{}</h2>\n", escapeMarkup(title));
    return fmt::format("{}<div class=\"item\" id=\"{}\" style=\"width:{}\">\n{}</div>\n", heading,
                       escapeMarkup(id), pixels(widthPt), markup);
}

}  // namespace office::model::excel
