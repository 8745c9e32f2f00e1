#include "office/libreoffice/word/table_text.h"

#include <fmt/format.h>

#include "office/colour.h"
#include "office/libreoffice/objects/table_markup.h"

namespace libreoffice::word {

namespace {

using objects::setAttributes;
using office::CellLook;

class TableText : public objects::TableMarkup {
public:
    using TableMarkup::TableMarkup;

protected:
    pugi::xml_node addTable(double widthPt, double heightPt) override;
    /// There is room for a row that another font makes higher.
    [[nodiscard]] const char* rowHeightProperty() const override { return "style:min-row-height"; }
    std::vector<StylePart> cellStyle(const CellLook& cell) override;
    [[nodiscard]] Attributes paragraphLook(const CellLook& cell) const override;
    void addText(pugi::xml_node cell, const CellLook& look) override;
};

pugi::xml_node TableText::addTable(double widthPt, double /*heightPt*/) {
    pugi::xml_node table = addRoot("office:document-content")
                               .append_child("office:body")
                               .append_child("office:text")
                               .append_child("table:table");
    const std::string style = styled("table", {{"style:table-properties",
                                                {{"style:width", objects::pointsText(widthPt)},
                                                 {"table:align", "left"},
                                                 {"style:writing-mode", "lr-tb"},
                                                 {"fo:margin-left", "0pt"},
                                                 {"fo:margin-top", "0pt"},
                                                 {"fo:margin-bottom", "0pt"}}}});
    setAttributes(table, {{"table:style-name", style}});
    return table;
}

std::vector<objects::TableMarkup::StylePart> TableText::cellStyle(const CellLook& cell) {
    constexpr std::int32_t upwards = 90;
    Attributes area = paddingOf(cell);
    if (cell.fill) area.emplace_back("fo:background-color", office::colourText(*cell.fill));
    area.emplace_back("style:vertical-align", heightInCell(cell));
    if (cell.rotation != 0)
        area.emplace_back("style:writing-mode", cell.rotation == upwards ? "bt-lr" : "tb-rl");
    for (const auto& [side, drawn] : {std::pair("left", cell.left),
                                      {"right", cell.right},
                                      {"top", cell.top},
                                      {"bottom", cell.bottom}})
        area.emplace_back(fmt::format("fo:border-{}", side), line(drawn));
    return {{"style:table-cell-properties", area}};
}

/// Besides, what a text's plain style may say.
objects::TableMarkup::Attributes TableText::paragraphLook(const CellLook& cell) const {
    Attributes look = TableMarkup::paragraphLook(cell);
    look.insert(look.end(), {{"fo:text-indent", "0pt"}, {"style:writing-mode", "lr-tb"}});
    return look;
}

/// LibreOffice writes a .docx that is not valid if the end of a paragraph says that it leans.
void TableText::addText(pugi::xml_node cell, const CellLook& look) {
    pugi::xml_node words = addParagraph(cell, look);
    if (look.isItalic) {
        words = words.append_child("text:span");
        setAttributes(words, {{"text:style-name", "Emphasis"}});
    }
    addWords(words, look.text);
}

}  // namespace

std::string tableText(const office::TableLook& table, double scale) {
    return TableText(scale).write(table);
}

}  // namespace libreoffice::word
