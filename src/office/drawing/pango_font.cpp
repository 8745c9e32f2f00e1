#include "office/drawing/pango_font.h"

namespace office::drawing {

PangoFontOwned pangoFontOf(const NamedFont& font, double size) {
    PangoFontOwned wanted(pango_font_description_new());
    pango_font_description_set_family(wanted.get(), font.family.c_str());
    pango_font_description_set_weight(wanted.get(), static_cast<PangoWeight>(font.weight));
    pango_font_description_set_style(wanted.get(),
                                     font.isItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    pango_font_description_set_absolute_size(wanted.get(), size * PANGO_SCALE);
    return wanted;
}

}  // namespace office::drawing
