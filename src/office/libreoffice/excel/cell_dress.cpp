#include "office/libreoffice/excel/cell_dress.h"

#include <com/sun/star/awt/FontSlant.hpp>
#include <com/sun/star/awt/FontWeight.hpp>

#include <algorithm>
#include <array>

#include "office/libreoffice/excel/cells_alike.h"

namespace libreoffice::excel {

namespace {

const std::vector<rtl::OUString>& namesOfMarks() {
    static const std::vector<rtl::OUString> names = {"CellBackColor", "CharColor",
                                                     "CharPosture",   "CharStrikeout",
                                                     "CharUnderline", "CharWeight"};
    return names;
}

StyleMarks marksIn(const NamedValues& values) {
    const auto read = [&](const rtl::OUString& name, auto otherwise, auto convert) {
        std::optional<decltype(convert(otherwise))> mark;
        if (values.any(name) >>= otherwise) mark = convert(otherwise);
        return mark;
    };
    const auto colour = [](sal_Int32 value) {
        return value < 0 ? StyleMarks::Colour() : swapRedAndBlue(value);
    };
    const auto isSet = [](sal_Int16 line) { return line != 0; };
    const auto leans = [](css::awt::FontSlant slant) { return slant != css::awt::FontSlant_NONE; };
    const auto isHeavy = [](float weight) { return weight > css::awt::FontWeight::NORMAL; };
    StyleMarks marks;
    marks.fill = read("CellBackColor", sal_Int32{}, colour);
    marks.fontColour = read("CharColor", sal_Int32{}, colour);
    marks.isItalic = read("CharPosture", css::awt::FontSlant_NONE, leans);
    marks.isStruckOut = read("CharStrikeout", sal_Int16{}, isSet);
    marks.isUnderlined = read("CharUnderline", sal_Int16{}, isSet);
    marks.isBold = read("CharWeight", float{}, isHeavy);
    return marks;
}

StyleMarks marksOf(const CellStyle& style, const std::vector<rtl::OUString>& own) {
    NamedValues said(style, namesOfMarks());
    for (const rtl::OUString& name : namesOfMarks())
        if (!std::binary_search(own.begin(), own.end(), name)) said.add(name, uno::Any());
    return marksIn(said);
}

bool belongsToMarks(const rtl::OUString& property) {
    constexpr std::array marks = {
        "CellBackColor", "CharColor",     "CharCrossedOut", "CharPosture",
        "CharStrikeout", "CharUnderline", "CharWeight",     "IsCellBackgroundTransparent"};
    return std::any_of(marks.begin(), marks.end(), [&](const char* mark) {
        return property.startsWith(rtl::OUString::createFromAscii(mark));
    });
}

}  // namespace

CellDress dressIn(const NamedValues& format) {
    const StyleMarks marks = marksIn(format);
    return {marks.fill.value_or(std::nullopt),  marks.fontColour.value_or(std::nullopt),
            marks.isBold.value_or(false),       marks.isItalic.value_or(false),
            marks.isUnderlined.value_or(false), marks.isStruckOut.value_or(false)};
}

void takeDress(office::CellLook& look, const CellDress& dress) {
    look.fill = dress.fill;
    look.isBold = dress.isBold;
    look.isItalic = dress.isItalic;
    look.isUnderlined = dress.isUnderlined;
    look.isStruckOut = dress.isStruckOut;
}

int StyleMarks::count() const {
    return int{fill.has_value()} + int{fontColour && *fontColour} + int{isBold.has_value()} +
           int{isItalic.has_value()} + int{isUnderlined.has_value()} + int{isStruckOut.has_value()};
}

bool StyleMarks::areOn(const CellDress& cell) const {
    const auto fits = [](const auto& mark, const auto& seen) { return !mark || *mark == seen; };
    const bool fitsInk = !fontColour || !*fontColour || *fontColour == cell.fontColour;
    return fits(fill, cell.fill) && fitsInk && fits(isBold, cell.isBold) &&
           fits(isItalic, cell.isItalic) && fits(isStruckOut, cell.isStruckOut) &&
           fits(isUnderlined, cell.isUnderlined);
}

bool StyleMarks::make(const CellDress& seen, const CellDress& own) const {
    // A page leaves black out.
    const auto inkOf = [](const Colour& colour) { return colour.value_or(0); };
    return seen.fill == fill.value_or(own.fill) &&
           inkOf(seen.fontColour) == inkOf(fontColour.value_or(own.fontColour)) &&
           seen.isBold == isBold.value_or(own.isBold) &&
           seen.isItalic == isItalic.value_or(own.isItalic) &&
           seen.isUnderlined == isUnderlined.value_or(own.isUnderlined) &&
           seen.isStruckOut == isStruckOut.value_or(own.isStruckOut);
}

StyleFacts styleFactsOf(const uno::Reference<css::frame::XModel>& book, const CellStyle& style) {
    const auto own = ownProperties(style);
    const bool isLikeParent = takesAfterParent(book, style, own);
    const auto said = isLikeParent ? propertiesAlongParents(book, style) : own;
    return {style, marksOf(style, own), isLikeParent,
            !std::all_of(said.begin(), said.end(), belongsToMarks)};
}

OwnDress::OwnDress(const SheetRecord& sheet, const model::CellBlock& block)
    : block_(block),
      dresses_(1),
      places_(static_cast<std::size_t>(block.cells())) {
    for (const auto& cells : cellsAlike(sheet.range(block))) {
        const auto place = static_cast<std::uint32_t>(dresses_.size());
        dresses_.push_back(dressIn(NamedValues(cells, namesOfMarks())));
        for (const auto& address : cells->getRangeAddresses()) {
            const auto common = intersection(blockOf(address), block_);
            if (!common) continue;
            for (std::int32_t row = common->firstRow; row <= common->lastRow; ++row) {
                const auto first = places_.begin() + (row - block_.firstRow) * block_.columns() +
                                   (common->firstColumn - block_.firstColumn);
                std::fill_n(first, common->columns(), place);
            }
        }
    }
}

const CellDress& OwnDress::at(std::int32_t column, std::int32_t row) const {
    const auto line = static_cast<std::size_t>(row - block_.firstRow);
    return dresses_[places_[line * static_cast<std::size_t>(block_.columns()) +
                            static_cast<std::size_t>(column - block_.firstColumn)]];
}

}  // namespace libreoffice::excel
