#include "live/live_suite.h"
#include "office/libreoffice/excel/same_fonts.h"

namespace live {

namespace {

using libreoffice::excel::SameFonts;

class SameFontsLive : public LiveSuite {};

TEST_F(SameFontsLive, AreFoundOutByTheirWidths) {
    struct Case {
        office::drawing::NamedFont font;
        std::set<std::string> beyondAscii;
        bool isSame;
    };
    SameFonts fonts(connection());
    for (const auto& [font, beyondAscii, isSame] : {
             Case{{"Liberation Sans, sans-serif"}, {}, true},
             Case{{"Liberation Serif, serif", 700}, {"ä", "€"}, true},
             Case{{"DejaVu Sans Mono, monospace", 400, true}, {}, true},
             // Carlito stands in for it, for both.
             Case{{"Calibri, sans-serif"}, {"–"}, true},
             // The suite knows that its letters are all of one width, and the drawing does not say
             // it.
             Case{{"Consolas, sans-serif"}, {}, false},
             // The name behind it is not what the suite would take.
             Case{{"Nonesuch, serif"}, {}, false},
             // Nobody has a glyph for it: the suite draws a box.
             Case{{"Liberation Sans, sans-serif"}, {"\U00016800"}, false},
         }) {
        EXPECT_EQ(fonts.firstOther({.drawnOtherwise = "", .fonts = {{font, beyondAscii}}}),
                  isSame ? "" : font.families);
    }
}

}  // namespace

}  // namespace live
