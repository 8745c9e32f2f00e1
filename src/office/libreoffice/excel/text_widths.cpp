#include "office/libreoffice/excel/text_widths.h"

#include <com/sun/star/awt/FontSlant.hpp>
#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/awt/XToolkit.hpp>

#include <algorithm>
#include <memory>

#include "office/libreoffice/main_thread.h"

namespace libreoffice::excel {

namespace {

/// Large enough for widths in whole units.
constexpr sal_Int16 measuredSize = 1000;
constexpr sal_Unicode pageLength = 256;
/// From here on the characters are as wide as they are high, almost all of them.
constexpr sal_Unicode firstWide = 0x2E80;

using Widths = uno::Sequence<sal_Int16>;

}  // namespace

Widths TextWidths::widthsOf(const uno::Reference<css::awt::XFont>& font, sal_Unicode first,
                            sal_Unicode last) const {
    const auto widths = std::make_shared<Widths>();
    onMainThread(connection_, [=] { *widths = font->getCharWidths(first, last); });
    return *widths;
}

TextWidths::Font& TextWidths::fontOf(const office::CellLook& look) {
    Font& font = fonts_[{look.fontName, look.isBold, look.isItalic}];
    if (font.font.is()) return font;
    if (!device_.is()) {
        const uno::Reference<css::awt::XToolkit> toolkit(
            connection_.create("com.sun.star.awt.Toolkit"), uno::UNO_QUERY_THROW);
        device_ = toolkit->createScreenCompatibleDevice(1, 1);
    }
    css::awt::FontDescriptor wanted;
    wanted.Name = toUno(look.fontName);
    wanted.Height = measuredSize;
    wanted.Weight = look.isBold ? css::awt::FontWeight::BOLD : css::awt::FontWeight::NORMAL;
    wanted.Slant = look.isItalic ? css::awt::FontSlant_ITALIC : css::awt::FontSlant_NONE;
    font.font = device_->getFont(wanted);
    return font;
}

double TextWidths::widthOf(sal_Unicode character, Font& font) const {
    // The second half of a character that takes two.
    if (character >= 0xDC00 && character <= 0xDFFF) return 0;
    if (character >= firstWide) return 1;
    const auto page = static_cast<sal_Unicode>(character / pageLength);
    const auto [found, isNew] = font.pages.try_emplace(page);
    if (isNew) {
        const auto first = static_cast<sal_Unicode>(page * pageLength);
        const uno::Sequence<sal_Int16> widths =
            widthsOf(font.font, first, static_cast<sal_Unicode>(first + (pageLength - 1)));
        std::transform(widths.begin(), widths.end(), found->second.begin(),
                       [](sal_Int16 width) { return width / double{measuredSize}; });
    }
    return found->second.at(character % pageLength);
}

double TextWidths::of(const std::string& line, const office::CellLook& look) {
    Font& font = fontOf(look);
    const rtl::OUString characters = toUno(line);
    double width = 0;
    for (sal_Int32 i = 0; i < characters.getLength(); ++i) width += widthOf(characters[i], font);
    return width * look.fontSizePt;
}

}  // namespace libreoffice::excel
