#pragma once

#include "office/call_arguments.h"
#include "office/model/powerpoint/deck.h"

namespace office::model::powerpoint {

/// Where a pasted object goes: beneath the title if the better part of the slide is there, in the
/// middle, and no larger than the room.
struct PastePlace {
    Point corner;
    Size size;
    /// Of its size in the workbook; 1 unless it had to be made smaller.
    double scale = 1;
};
[[nodiscard]] PastePlace pastePlaceFor(const Size& natural, Deck& deck, DeckSlide& slide);

/// What `PasteSpecial` makes of what was copied, by its arguments: the kind of data, display as an
/// icon, the icon's file, number and label, and whether it is a link. `Failure` 5 for a kind that
/// isn't known here, 1004 if nothing was copied or if it can't be had in this form.
[[nodiscard]] DeckShapePtr pasteSpecial(Deck& deck, DeckSlide& slide,
                                        const CallArguments& arguments);
/// The same in the form that keeps most of it.
[[nodiscard]] DeckShapePtr pasteDefault(Deck& deck, DeckSlide& slide, const std::string& source);

}  // namespace office::model::powerpoint
