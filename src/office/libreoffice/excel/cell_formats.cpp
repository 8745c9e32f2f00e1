#include "office/libreoffice/excel/cell_formats.h"

#include <com/sun/star/awt/FontUnderline.hpp>
#include <com/sun/star/table/BorderLine2.hpp>
#include <com/sun/star/table/BorderLineStyle.hpp>
#include <com/sun/star/table/CellHoriJustify.hpp>
#include <com/sun/star/table/CellOrientation.hpp>
#include <com/sun/star/table/CellVertJustify2.hpp>

#include <algorithm>
#include <cmath>

#include "office/libreoffice/excel/cell_dress.h"
#include "office/libreoffice/excel/cells_alike.h"
#include "office/libreoffice/units.h"

namespace libreoffice::excel {

namespace {

using office::CellLine;
using office::CellLook;

CellLine::Style styleOfLine(std::int16_t style) {
    using namespace css::table::BorderLineStyle;
    switch (style) {
        case DOTTED:
            return CellLine::Style::Dotted;
        case DASHED:
        case FINE_DASHED:
        case DASH_DOT:
        case DASH_DOT_DOT:
            return CellLine::Style::Dashed;
        case SOLID:
        case NONE:
            return CellLine::Style::Solid;
        // All others are made of two.
        default:
            return CellLine::Style::Double;
    }
}

constexpr std::int32_t hundredthsOfDegree = 100;

/// Cells are turned in quarters here: what stands askew lies or stands up, whichever is nearer.
std::int32_t quarterOf(std::int32_t hundredthDegrees) {
    constexpr std::int32_t eighth = 4500;
    if (hundredthDegrees >= eighth && hundredthDegrees <= 3 * eighth) return 90;
    if (hundredthDegrees >= 5 * eighth && hundredthDegrees <= 7 * eighth) return 270;
    return 0;
}

/// Takes what the properties of a format say, by their names.
class FormatReader {
public:
    explicit FormatReader(const uno::Reference<uno::XInterface>& cells)
        : values_(cells,
                  {"BottomBorder2",     "CellBackColor",       "CharColor",     "CharFontName",
                   "CharFontNameAsian", "CharFontNameComplex", "CharHeight",    "CharPosture",
                   "CharStrikeout",     "CharUnderline",       "CharWeight",    "DiagonalBLTR2",
                   "DiagonalTLBR2",     "HoriJustify",         "IsTextWrapped", "LeftBorder2",
                   "NumberFormat",      "Orientation",         "ParaIndent",    "RightBorder2",
                   "RotateAngle",       "ShrinkToFit",         "TopBorder2",    "VertJustify"}) {}

    [[nodiscard]] CellFormat read() const {
        CellFormat format;
        CellLook& look = format.look;
        look.fontName = fromUno(values_.get<rtl::OUString>("CharFontName"));
        takeOtherFonts(look);
        look.fontSizePt = values_.get<float>("CharHeight");
        const CellDress dress = dressIn(values_);
        takeDress(look, dress);
        look.isUnderlinedTwice =
            values_.get<std::int16_t>("CharUnderline") == css::awt::FontUnderline::DOUBLE;
        look.fontColour = dress.fontColour.value_or(automaticColourOn(look.fill));
        look.across = across();
        look.down = down();
        format.isAligned = values_.get<css::table::CellHoriJustify>("HoriJustify") !=
                           css::table::CellHoriJustify_STANDARD;
        // A text that stands where its kind stands by itself has none.
        if (format.isAligned) look.indentPt = pointsOf(values_.get<std::int16_t>("ParaIndent"));
        look.wraps =
            values_.get<bool>("IsTextWrapped") || look.across == CellLook::Across::Justified;
        const auto orientation = values_.get<css::table::CellOrientation>("Orientation");
        const auto angle = values_.get<std::int32_t>("RotateAngle");
        const bool isStacked = orientation == css::table::CellOrientation_STACKED;
        look.rotation = isStacked ? 270 : quarterOf(angle);
        if (!isStacked && angle != look.rotation * hundredthsOfDegree)
            format.uprightTurn = angle < 180 * hundredthsOfDegree ? 90 : 270;
        look.left = line("LeftBorder2");
        look.right = line("RightBorder2");
        look.top = line("TopBorder2");
        look.bottom = line("BottomBorder2");
        look.falling = line("DiagonalTLBR2");
        look.rising = line("DiagonalBLTR2");
        format.shrinksToFit = values_.get<bool>("ShrinkToFit");
        format.numberFormat = values_.get<std::int32_t>("NumberFormat");
        return format;
    }

private:
    /// LibreOffice has other fonts for what it finds no characters for. Of a font that it doesn't
    /// have it only sees the stand-in, which may lack one of both: there the workbook's holds.
    void takeOtherFonts(CellLook& look) const {
        const auto asian = fromUno(values_.get<rtl::OUString>("CharFontNameAsian"));
        const auto complex = fromUno(values_.get<rtl::OUString>("CharFontNameComplex"));
        if (asian == look.fontName || complex == look.fontName) return;
        look.asianFontName = asian;
        look.complexFontName = complex;
    }
    [[nodiscard]] CellLine line(const rtl::OUString& name) const {
        const auto border = values_.get<css::table::BorderLine2>(name);
        return {pointsOf(static_cast<std::int32_t>(border.LineWidth)), swapRedAndBlue(border.Color),
                styleOfLine(border.LineStyle)};
    }
    [[nodiscard]] CellLook::Across across() const {
        switch (values_.get<css::table::CellHoriJustify>("HoriJustify")) {
            case css::table::CellHoriJustify_CENTER:
                return CellLook::Across::Centre;
            case css::table::CellHoriJustify_RIGHT:
                return CellLook::Across::Right;
            case css::table::CellHoriJustify_BLOCK:
                return CellLook::Across::Justified;
            default:
                return CellLook::Across::Left;
        }
    }
    [[nodiscard]] CellLook::Down down() const {
        switch (values_.get<std::int32_t>("VertJustify")) {
            case css::table::CellVertJustify2::TOP:
            case css::table::CellVertJustify2::BLOCK:
                return CellLook::Down::Top;
            case css::table::CellVertJustify2::CENTER:
                return CellLook::Down::Middle;
            default:
                return CellLook::Down::Bottom;
        }
    }

    NamedValues values_;
};

/// A part of a colour, from 0 to 255, by the light that it gives.
double linear(std::int32_t part) {
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

}  // namespace

std::int32_t automaticColourOn(const std::optional<std::int32_t>& fill) {
    constexpr std::int32_t black = 0, white = 0xFFFFFF;
    // Found by trying: the ground of LibreOffice's shapes is none of the dark ones for it.
    constexpr double lightest = 88.0 / 255;
    constexpr std::int32_t groundOfShapes = 0xCF9F72;
    if (!fill || *fill == groundOfShapes) return black;
    const double luminance = 0.2126 * linear(*fill & 0xFF) + 0.7152 * linear(*fill >> 8 & 0xFF) +
                             0.0722 * linear(*fill >> 16 & 0xFF);
    return luminance < lightest ? white : black;
}

CellFormats readCellFormats(const uno::Reference<css::table::XCellRange>& cells,
                            const ShownLines& shown) {
    CellFormats read;
    read.ofCells.resize(shown.rows.size() * shown.columns.size());
    for (const auto& alike : cellsAlike(cells)) {
        const std::size_t place = read.formats.size();
        read.formats.push_back(FormatReader(alike).read());
        if (read.ofCells.empty()) continue;
        for (const css::table::CellRangeAddress& part : alike->getRangeAddresses()) {
            const auto [firstRow, lastRow] = shownBetween(shown.rows, part.StartRow, part.EndRow);
            const auto [firstColumn, lastColumn] =
                shownBetween(shown.columns, part.StartColumn, part.EndColumn);
            for (std::size_t row = firstRow; row < lastRow; ++row) {
                for (std::size_t column = firstColumn; column < lastColumn; ++column)
                    read.ofCells[row * shown.columns.size() + column] = place;
            }
        }
    }
    return read;
}

}  // namespace libreoffice::excel
