#include "office/libreoffice/excel/same_fonts.h"

#include <com/sun/star/awt/FontSlant.hpp>
#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/awt/XFont.hpp>
#include <com/sun/star/awt/XToolkit.hpp>

#include <cmath>
#include <memory>
#include <utility>

#include "office/libreoffice/main_thread.h"

namespace libreoffice::excel {

namespace {

/// Letters with spaces between, so that no pair of them is drawn together. Hardly two fonts agree
/// in the width of all.
constexpr const char* sample = "I M g f a W 1 0 . % & i l r s x Q";
/// Large enough for widths that no hint of a font changes.
constexpr sal_Int16 measuredSize = 1000;
/// Kerning with spaces makes less of a difference; another font makes more.
constexpr double alike = 0.006;
constexpr int boldFrom = 600;

std::string firstOf(const std::string& families) {
    const std::string first = families.substr(0, families.find(','));
    const auto isQuote = [](char character) { return character == '\'' || character == '"'; };
    if (first.size() < 2 || !isQuote(first.front())) return first;
    return first.substr(1, first.size() - 2);
}

}  // namespace

double SameFonts::suiteWidth(const NamedFont& font, const std::string& line) {
    if (!device_.is()) {
        const uno::Reference<css::awt::XToolkit> toolkit(
            connection_->create("com.sun.star.awt.Toolkit"), uno::UNO_QUERY_THROW);
        device_ = toolkit->createScreenCompatibleDevice(1, 1);
    }
    css::awt::FontDescriptor wanted;
    wanted.Name = toUno(firstOf(font.families));
    wanted.Height = measuredSize;
    wanted.Weight =
        font.weight >= boldFrom ? css::awt::FontWeight::BOLD : css::awt::FontWeight::NORMAL;
    wanted.Slant = font.isItalic ? css::awt::FontSlant_ITALIC : css::awt::FontSlant_NONE;
    const auto width = std::make_shared<sal_Int32>(0);
    onMainThread(*connection_, [device = device_, wanted, characters = toUno(line), width] {
        *width = device->getFont(wanted)->getStringWidth(characters);
    });
    return *width / double{measuredSize};
}

bool SameFonts::isSame(const NamedFont& font, const std::string& line) {
    const auto [found, isNew] = known_[font].try_emplace(line, false);
    if (!isNew) return found->second;
    // The suite looks for a replacement of the first one alone.
    NamedFont alone = font;
    alone.families = firstOf(font.families);
    const auto drawn = drawn_.of(line, font);
    const auto drawnAlone = drawn_.of(line, alone);
    const auto isAsDrawn = [&](double width) { return std::abs(*drawn - width) <= alike * *drawn; };
    found->second =
        drawn && drawnAlone && isAsDrawn(*drawnAlone) && isAsDrawn(suiteWidth(font, line));
    return found->second;
}

std::string SameFonts::firstOther(const SvgContent& content) {
    for (const auto& [font, characters] : content.fonts) {
        std::string beyond;
        for (const std::string& character : characters) beyond += character + ' ';
        if (!isSame(font, sample) || (!beyond.empty() && !isSame(font, beyond)))
            return font.families;
    }
    return {};
}

}  // namespace libreoffice::excel
