#pragma once

#include <pugixml.hpp>

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/table_look.h"

namespace libreoffice::objects {

void setAttributes(pugi::xml_node node,
                   std::initializer_list<std::pair<const char*, std::string>> attributes);

/// "12.500pt".
[[nodiscard]] std::string pointsText(double length);

/// A table as LibreOffice's documents are written, its fonts, widths and heights scaled. Cells that
/// look alike share their styles, on which most of the time of reading goes.
///
/// In each column and in each row of a table a cell begins: LibreOffice takes any other out as soon
/// as its cells are merged, and merges what follows in wrong places.
class TableMarkup {
public:
    explicit TableMarkup(double scale) : scale_(scale) {}
    TableMarkup(const TableMarkup&) = delete;
    TableMarkup& operator=(const TableMarkup&) = delete;
    virtual ~TableMarkup() = default;

    /// The document with the table. Once.
    [[nodiscard]] std::string write(const office::TableLook& table);

protected:
    using Attributes = std::vector<std::pair<std::string, std::string>>;
    struct StylePart {
        const char* element;
        Attributes attributes;
    };

    /// Begins the document and its styles.
    pugi::xml_node addRoot(const char* name);
    /// The name of the style of a family that is made of these parts.
    [[nodiscard]] std::string styled(const char* family, const std::vector<StylePart>& parts);
    /// A name for what stands beside the styles, made out of a word.
    [[nodiscard]] std::string freeName(std::string_view word) const;
    [[nodiscard]] pugi::xml_node styles() const { return styles_; }
    [[nodiscard]] double scale() const { return scale_; }

    [[nodiscard]] Attributes paddingOf(const office::CellLook& cell) const;
    [[nodiscard]] static const char* heightInCell(const office::CellLook& cell);
    [[nodiscard]] std::string line(const office::CellLine& line) const;
    pugi::xml_node addParagraph(pugi::xml_node cell, const office::CellLook& look);
    static void addWords(pugi::xml_node paragraph, const std::string& text);

    /// The document around the table, and the table in it.
    [[nodiscard]] virtual pugi::xml_node addTable(double widthPt, double heightPt) = 0;
    /// Where a line of the table comes to lie that is this far from its beginning.
    [[nodiscard]] virtual double placeOf(double scaledPt) const { return scaledPt; }
    [[nodiscard]] virtual const char* rowHeightProperty() const = 0;
    [[nodiscard]] virtual std::vector<StylePart> cellStyle(const office::CellLook& cell) = 0;
    [[nodiscard]] virtual Attributes paragraphLook(const office::CellLook& cell) const;
    [[nodiscard]] virtual Attributes letters(const office::CellLook& cell) const;
    virtual void addText(pugi::xml_node cell, const office::CellLook& look) = 0;

private:
    [[nodiscard]] std::vector<double> scaled(const std::vector<double>& lengthsPt) const;
    void addCell(pugi::xml_node row, const office::CellLook& cell);

    double scale_;
    pugi::xml_document document_;
    pugi::xml_node styles_;
    std::map<std::string, std::string> namesOfStyles_;
};

}  // namespace libreoffice::objects
