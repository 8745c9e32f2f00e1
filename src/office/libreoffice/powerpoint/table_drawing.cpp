#include "office/libreoffice/powerpoint/table_drawing.h"

#include <fmt/format.h>

#include "office/colour.h"
#include "office/libreoffice/objects/table_markup.h"
#include "office/libreoffice/units.h"

namespace libreoffice::powerpoint {

namespace {

using objects::pointsText;
using objects::setAttributes;
using office::CellLook;

class TableDrawing : public objects::TableMarkup {
public:
    using TableMarkup::TableMarkup;

protected:
    pugi::xml_node addTable(double widthPt, double heightPt) override;
    /// Whole units of LibreOffice, which add up: it lays a table that doesn't fill its frame out
    /// once more with each step of a paste.
    [[nodiscard]] double placeOf(double scaledPt) const override {
        return pointsOf(hundredthMmOf(scaledPt));
    }
    [[nodiscard]] const char* rowHeightProperty() const override { return "style:row-height"; }
    std::vector<StylePart> cellStyle(const CellLook& cell) override;
    [[nodiscard]] Attributes letters(const CellLook& cell) const override;
    void addText(pugi::xml_node cell, const CellLook& look) override;

private:
    [[nodiscard]] Attributes fillOf(const CellLook& cell);
    [[nodiscard]] Attributes gradientOf(const CellLook& cell);
    [[nodiscard]] Attributes linesOf(const CellLook& cell) const;
};

pugi::xml_node TableDrawing::addTable(double widthPt, double heightPt) {
    pugi::xml_node root = addRoot("office:document");
    setAttributes(root, {{"office:mimetype", "application/vnd.oasis.opendocument.presentation"}});
    setAttributes(styles().append_child("style:page-layout"), {{"style:name", "page"}});
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
                          {"svg:width", pointsText(widthPt - lastPt)},
                          {"svg:height", pointsText(heightPt - lastPt)}});
    return frame.append_child("table:table");
}

std::vector<objects::TableMarkup::StylePart> TableDrawing::cellStyle(const CellLook& cell) {
    Attributes area = paddingOf(cell);
    const Attributes fill = fillOf(cell);
    area.insert(area.end(), fill.begin(), fill.end());
    area.emplace_back("draw:textarea-vertical-align", heightInCell(cell));
    std::vector<StylePart> parts = {{"loext:graphic-properties", area}};
    if (cell.rotation != 0)
        parts.push_back({"style:table-cell-properties",
                         {{"style:rotation-angle", fmt::format("{}", cell.rotation)}}});
    parts.push_back({"style:paragraph-properties", linesOf(cell)});
    if (cell.text.empty()) parts.push_back({"style:text-properties", letters(cell)});
    return parts;
}

objects::TableMarkup::Attributes TableDrawing::linesOf(const CellLook& cell) const {
    Attributes lines;
    for (const auto& [side, drawn] : {std::pair("left", cell.left),
                                      {"right", cell.right},
                                      {"top", cell.top},
                                      {"bottom", cell.bottom}}) {
        if (drawn.widthPt > 0) lines.emplace_back(fmt::format("fo:border-{}", side), line(drawn));
    }
    // Any side says of the others that they have none, and LibreOffice goes through the table for
    // each thing that a cell says.
    if (lines.empty()) lines.emplace_back("fo:border-left", "none");
    return lines;
}

objects::TableMarkup::Attributes TableDrawing::fillOf(const CellLook& cell) {
    if (cell.bar && cell.bar->from < cell.bar->to) return gradientOf(cell);
    if (!cell.fill) return {{"draw:fill", "none"}};
    return {{"draw:fill", "solid"}, {"draw:fill-color", office::colourText(*cell.fill)}};
}

/// A bar is a gradient from the left to the right that changes its colour at one place. It stands
/// beside the styles: LibreOffice crashes on pasted drawings that have styles with names for users.
objects::TableMarkup::Attributes TableDrawing::gradientOf(const CellLook& cell) {
    const std::string name = freeName("bar");
    const auto& [from, to, left, right, isAlone] = *cell.bar;
    const auto addGradient = [&](const char* element) {
        pugi::xml_node gradient = styles().append_child(element);
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

objects::TableMarkup::Attributes TableDrawing::letters(const CellLook& cell) const {
    Attributes letters = TableMarkup::letters(cell);
    for (const char* slant :
         {"fo:font-style", "style:font-style-asian", "style:font-style-complex"})
        letters.emplace_back(slant, cell.isItalic ? "italic" : "normal");
    // A sheet is drawn so, and wider words would be broken.
    letters.emplace_back("style:letter-kerning", "true");
    return letters;
}

/// LibreOffice gives a paragraph without letters those of the presentation, 18 points, and the row
/// grows by them. A cell without one has the letters of its own style.
void TableDrawing::addText(pugi::xml_node cell, const CellLook& look) {
    if (!look.text.empty()) addWords(addParagraph(cell, look), look.text);
}

}  // namespace

std::string tableDrawing(const office::TableLook& table, double scale) {
    return TableDrawing(scale).write(table);
}

}  // namespace libreoffice::powerpoint
