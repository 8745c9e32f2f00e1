#include "office/libreoffice/excel/cells_as_html.h"

#include <libxml/HTMLparser.h>

#include <algorithm>
#include <memory>
#include <string>

#include "office/colour.h"
#include "office/libreoffice/uno_values.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

using office::CellLook;

struct FreeDocument {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using HtmlDocument = std::unique_ptr<xmlDoc, FreeDocument>;

std::string_view textOf(const xmlChar* text) {
    // The library's characters are the bytes of UTF-8.
    return text != nullptr ? reinterpret_cast<const char*>(text) : std::string_view();
}

bool isElement(const xmlNode& node, std::string_view name) {
    return node.type == XML_ELEMENT_NODE && textOf(node.name) == name;
}

std::optional<std::string> attributeOf(const xmlNode& node, std::string_view name) {
    for (const xmlAttr* each = node.properties; each != nullptr; each = each->next) {
        if (textOf(each->name) != name) continue;
        return std::string(each->children != nullptr ? textOf(each->children->content) : "");
    }
    return std::nullopt;
}

std::optional<double> numberOf(const xmlNode& node, std::string_view name) {
    const auto text = attributeOf(node, name);
    if (!text || text->empty()) return std::nullopt;
    // The values of cells have the decimal mark of the suite's language, and no other mark.
    return office::leadingNumber(office::replaceAll(*text, ",", "."));
}

std::int32_t countOf(const xmlNode& node, std::string_view name) {
    return static_cast<std::int32_t>(numberOf(node, name).value_or(1));
}

std::optional<std::int32_t> colourOf(const xmlNode& node, std::string_view name) {
    const auto text = attributeOf(node, name);
    if (!text || !text->starts_with('#')) return std::nullopt;
    return office::colourOfHex(text->c_str() + 1);
}

/// The line breaks of the page itself, with the blanks after them.
bool isLayout(std::string_view text) {
    return text.starts_with('\n') && text.find_first_not_of("\n\t ") == std::string_view::npos;
}

/// The text of a cell and how all of it is written, which stands in elements around it.
void readText(const xmlNode& parent, HtmlCell& cell) {
    CellLook& look = cell.look;
    for (const xmlNode* node = parent.children; node != nullptr; node = node->next) {
        if (node->type == XML_TEXT_NODE && !isLayout(textOf(node->content)))
            look.text += textOf(node->content);
        // What a note says belongs to no cell.
        if (node->type != XML_ELEMENT_NODE || textOf(node->name) == "comment") continue;
        if (textOf(node->name) == "br") look.text += '\n';
        if (textOf(node->name) == "b") look.isBold = true;
        if (textOf(node->name) == "i") look.isItalic = true;
        if (textOf(node->name) == "u") look.isUnderlined = true;
        if (textOf(node->name) == "s") look.isStruckOut = true;
        if (textOf(node->name) == "font")
            if (const auto colour = colourOf(*node, "color")) cell.fontColour = colour;
        readText(*node, cell);
    }
}

CellLook::Across acrossOf(const std::string& name) {
    if (name == "center") return CellLook::Across::Centre;
    if (name == "right") return CellLook::Across::Right;
    if (name == "justify") return CellLook::Across::Justified;
    return CellLook::Across::Left;
}

std::optional<CellLook::Down> downOf(const std::string& name) {
    if (name == "middle") return CellLook::Down::Middle;
    if (name == "bottom") return CellLook::Down::Bottom;
    if (name == "top") return CellLook::Down::Top;
    return std::nullopt;
}

HtmlCell readCell(const xmlNode& node) {
    HtmlCell cell;
    CellLook& look = cell.look;
    readText(node, cell);
    // A cell has no stops that a tabulator could lead to.
    std::replace(look.text.begin(), look.text.end(), '\t', ' ');
    // An empty line stands in an empty cell.
    if (look.text == "\n") look.text.clear();
    look.fill = colourOf(node, "bgcolor");
    look.across = acrossOf(attributeOf(node, "align").value_or(""));
    cell.down = downOf(attributeOf(node, "valign").value_or(""));
    look.columns = countOf(node, "colspan");
    look.rows = countOf(node, "rowspan");
    cell.number = numberOf(node, "sdval");
    return cell;
}

HtmlRow readRow(const xmlNode& parent) {
    HtmlRow row;
    for (const xmlNode* node = parent.children; node != nullptr; node = node->next) {
        if (!isElement(*node, "td")) continue;
        row.cells.push_back(readCell(*node));
        if (row.cells.back().look.rows == 1 && !row.heightPx)
            row.heightPx = numberOf(*node, "height");
    }
    return row;
}

void readTable(const xmlNode& parent, CellsAsHtml& cells) {
    for (const xmlNode* node = parent.children; node != nullptr; node = node->next) {
        if (isElement(*node, "colgroup")) {
            cells.columnWidthsPx.insert(cells.columnWidthsPx.end(),
                                        static_cast<std::size_t>(countOf(*node, "span")),
                                        numberOf(*node, "width").value_or(0));
        } else if (isElement(*node, "tr")) {
            cells.rows.push_back(readRow(*node));
        } else if (node->type == XML_ELEMENT_NODE) {
            readTable(*node, cells);
        }
    }
}

}  // namespace

CellsAsHtml readCellsAsHtml(std::string_view html) {
    // Nothing is fetched, and the faults of a page are no business of the standard error.
    constexpr int options =
        HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET;
    const HtmlDocument document(
        htmlReadMemory(html.data(), static_cast<int>(html.size()), nullptr, "UTF-8", options));
    CellsAsHtml cells;
    const xmlNode* const root = document ? xmlDocGetRootElement(document.get()) : nullptr;
    if (root != nullptr) readTable(*root, cells);
    return cells;
}

}  // namespace libreoffice::excel
