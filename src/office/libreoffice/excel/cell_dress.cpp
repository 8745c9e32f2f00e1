#include "office/libreoffice/excel/cell_dress.h"

#include <com/sun/star/awt/FontSlant.hpp>
#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/beans/XMultiPropertySet.hpp>

#include <algorithm>
#include <array>

#include "office/libreoffice/excel/cells_alike.h"

namespace libreoffice::excel {

namespace {

uno::Sequence<rtl::OUString> namesOfMarks() {
    return namesOf({"CellBackColor", "CharColor", "CharPosture", "CharStrikeout", "CharUnderline",
                    "CharWeight"});
}

/// Of values in the order of those names.
StyleMarks marksIn(const uno::Sequence<uno::Any>& values) {
    const auto read = [&](sal_Int32 place, auto otherwise, auto convert) {
        std::optional<decltype(convert(otherwise))> mark;
        if (values[place] >>= otherwise) mark = convert(otherwise);
        return mark;
    };
    const auto colour = [](sal_Int32 value) {
        return value < 0 ? StyleMarks::Colour() : swapRedAndBlue(value);
    };
    const auto isSet = [](sal_Int16 line) { return line != 0; };
    const auto leans = [](css::awt::FontSlant slant) { return slant != css::awt::FontSlant_NONE; };
    const auto isHeavy = [](float weight) { return weight > css::awt::FontWeight::NORMAL; };
    StyleMarks marks;
    marks.fill = read(0, sal_Int32{}, colour);
    marks.fontColour = read(1, sal_Int32{}, colour);
    marks.isItalic = read(2, css::awt::FontSlant_NONE, leans);
    marks.isStruckOut = read(3, sal_Int16{}, isSet);
    marks.isUnderlined = read(4, sal_Int16{}, isSet);
    marks.isBold = read(5, float{}, isHeavy);
    return marks;
}

StyleMarks marksOf(const CellStyle& style) {
    const auto names = namesOfMarks();
    const auto states = style->getPropertyStates(names);
    auto values = as<css::beans::XMultiPropertySet>(style)->getPropertyValues(names);
    for (sal_Int32 i = 0; i < names.getLength(); ++i)
        if (states[i] != css::beans::PropertyState_DIRECT_VALUE) values.getArray()[i].clear();
    return marksIn(values);
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
    const bool isLikeParent = takesAfterParent(book, style);
    const auto said = isLikeParent ? propertiesAlongParents(book, style) : ownProperties(style);
    return {style, marksOf(style), isLikeParent,
            !std::all_of(said.begin(), said.end(), belongsToMarks)};
}

OwnDress::OwnDress(const SheetRecord& sheet, const model::CellBlock& block)
    : block_(block),
      dresses_(1),
      places_(static_cast<std::size_t>(block.cells())) {
    for (const auto& cells : cellsAlike(sheet.range(block))) {
        const StyleMarks marks =
            marksIn(as<css::beans::XMultiPropertySet>(cells)->getPropertyValues(namesOfMarks()));
        const auto place = static_cast<std::uint32_t>(dresses_.size());
        dresses_.push_back({marks.fill.value_or(std::nullopt),
                            marks.fontColour.value_or(std::nullopt), marks.isBold.value_or(false),
                            marks.isItalic.value_or(false), marks.isUnderlined.value_or(false),
                            marks.isStruckOut.value_or(false)});
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
