#include "live/live_suite.h"
#include "office/libreoffice/excel/same_fonts.h"

namespace live {

namespace {

using libreoffice::excel::SameFonts;
using office::drawing::FontKind;

class SameFontsLive : public LiveSuite {};

TEST_F(SameFontsLive, AreFoundOutByTheirWidths) {
    struct Case {
        office::drawing::NamedFont font;
        std::string characters;
        bool isSame;
    };
    SameFonts fonts(connection());
    for (const auto& [font, characters, isSame] : {
             Case{{"Liberation Sans"}, "", true},
             Case{{"Liberation Serif", 700}, "ä€", true},
             Case{{"Impact", 400, false, FontKind::Swiss}, "", true},
             Case{{"Consolas", 700, false, FontKind::Swiss}, "", true},
             Case{{"Book Antiqua", 400, false, FontKind::Roman}, "", true},
             Case{{"DejaVu Sans Mono", 400, true}, "", true},
             // Carlito stands in for it, for both.
             Case{{"Calibri"}, "–", true},
             // The suite knows that its letters are all of one width, and the drawing does not say
             // it.
             Case{{"Consolas"}, "", false},
             // Nobody says which one of a list the suite takes.
             Case{{"Liberation Sans;Liberation Serif"}, "", false},
             // Nobody has a glyph for it: the suite draws a box.
             Case{{"Liberation Sans"}, "\U00016800", false},
         }) {
        office::drawing::Metafile picture;
        picture.fonts.push_back({.name = font});
        office::drawing::Metafile::Text text;
        text.characters = characters;
        picture.operations.push_back({text});
        EXPECT_EQ(fonts.firstOther(picture), isSame ? "" : font.family);
    }
}

}  // namespace

}  // namespace live
