#include "office/drawing/pango_font.h"

namespace office::drawing {

namespace {

/// As the suite asks for it.
std::string familiesOf(const NamedFont& font) {
    switch (font.kind) {
        case FontKind::Roman:
            return font.family + ",serif";
        case FontKind::Swiss:
            return font.family + ",sans-serif";
        case FontKind::Any:
            break;
    }
    return font.family;
}

}  // namespace

PangoFontOwned pangoFontOf(const NamedFont& font, double size) {
    PangoFontOwned wanted(pango_font_description_new());
    pango_font_description_set_family(wanted.get(), familiesOf(font).c_str());
    pango_font_description_set_weight(wanted.get(), static_cast<PangoWeight>(font.weight));
    pango_font_description_set_style(wanted.get(),
                                     font.isItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    pango_font_description_set_absolute_size(wanted.get(), size * PANGO_SCALE);
    return wanted;
}

}  // namespace office::drawing
