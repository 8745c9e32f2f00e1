#include "office/libreoffice/excel/same_fonts.h"

#include <com/sun/star/awt/FontSlant.hpp>
#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/awt/XFont.hpp>
#include <com/sun/star/awt/XToolkit.hpp>

#include <cmath>
#include <memory>
#include <set>
#include <string_view>
#include <variant>

#include "office/libreoffice/main_thread.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

/// Letters with spaces between, so that no pair of them is drawn together. Hardly two fonts agree
/// in the width of all.
constexpr const char* sample = "I M g f a W 1 0 . % & i l r s x Q";
/// Large enough for widths that no hint of a font changes.
constexpr sal_Int16 comparedSize = 1000;
/// Kerning with spaces makes less of a difference; another font makes more.
constexpr double alike = 0.006;
constexpr int boldFrom = 600;

/// Puts each character beyond ASCII of a text among others.
void addBeyondAscii(std::string_view text, std::set<std::string>& characters) {
    for (const auto& [bytes, code] : office::charactersOf(text))
        if (code >= 0x80) characters.emplace(bytes);
}

}  // namespace

double SameFonts::suiteWidth(const NamedFont& font, const std::string& line) {
    if (!device_.is()) {
        const uno::Reference<css::awt::XToolkit> toolkit(
            connection_->create("com.sun.star.awt.Toolkit"), uno::UNO_QUERY_THROW);
        device_ = toolkit->createScreenCompatibleDevice(1, 1);
    }
    css::awt::FontDescriptor wanted;
    wanted.Name = toUno(font.family);
    wanted.Family = static_cast<sal_Int16>(font.kind);
    wanted.Height = comparedSize;
    wanted.Weight =
        font.weight >= boldFrom ? css::awt::FontWeight::BOLD : css::awt::FontWeight::NORMAL;
    wanted.Slant = font.isItalic ? css::awt::FontSlant_ITALIC : css::awt::FontSlant_NONE;
    struct Measured {
        uno::Reference<css::awt::XFont> font;
        sal_Int32 width = 0;
    };
    const auto measured = std::make_shared<Measured>();
    onMainThread(*connection_, [device = device_, wanted, characters = toUno(line), measured] {
        measured->font = device->getFont(wanted);
        measured->width = measured->font->getStringWidth(characters);
    });
    return measured->width / double{comparedSize};
}

bool SameFonts::isSame(const NamedFont& font, const std::string& line) {
    const auto [found, isNew] = known_[font].try_emplace(line, false);
    if (!isNew) return found->second;
    const auto drawn = drawn_.of(line, font);
    found->second = drawn && std::abs(*drawn - suiteWidth(font, line)) <= alike * *drawn;
    return found->second;
}

std::string SameFonts::firstOther(const office::drawing::Metafile& metafile) {
    std::map<NamedFont, std::set<std::string>> fonts;
    for (const auto& operation : metafile.operations) {
        if (const auto* text = std::get_if<office::drawing::Metafile::Text>(&operation.what))
            addBeyondAscii(text->characters, fonts[metafile.fonts[text->font].name]);
    }
    for (const auto& [font, characters] : fonts) {
        std::string beyond;
        for (const std::string& character : characters) beyond += character + ' ';
        const bool isList = font.family.find(';') != std::string::npos;
        if (isList || !isSame(font, sample) || (!beyond.empty() && !isSame(font, beyond)))
            return font.family;
    }
    return {};
}

}  // namespace libreoffice::excel
