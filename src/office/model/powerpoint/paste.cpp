#include "office/model/powerpoint/paste.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "office/model/powerpoint/objects.h"

namespace office::model::powerpoint {

namespace {

/// PowerPoint's numbers of what can be pasted.
constexpr std::array<std::pair<std::int32_t, PasteAs>, 5> dataTypes = {{
    {0, PasteAs::Default},
    {1, PasteAs::Png},
    {2, PasteAs::Metafile},
    {6, PasteAs::Png},
    {10, PasteAs::Embedded},
}};

PasteAs wantedForm(const CallArguments& arguments) {
    constexpr std::size_t link = 5;
    if (arguments.at(1, false).toBool())
        refuseCall(arguments.source(), "Nothing is shown as an icon here");
    if (arguments.at(link, false).toBool()) return PasteAs::Linked;
    const std::int32_t wanted = arguments.at(0, 0).toLong();
    const auto* const known =
        std::find_if(dataTypes.begin(), dataTypes.end(),
                     [&](const auto& candidate) { return candidate.first == wanted; });
    if (known == dataTypes.end())
        refuseCall(arguments.source(), fmt::format("There is no data type {} here", wanted));
    return known->second;
}

DeckShapePtr paste(Deck& deck, DeckSlide& slide, PasteAs as, const std::string& source) {
    const CopiedPtr copied = deck.copied();
    if (!copied) refuse(source, "Nothing has been copied");
    return slide.paste(*copied, as);
}

}  // namespace

PastePlace pastePlaceFor(const Size& natural, Deck& deck, DeckSlide& slide) {
    /// Of the room, so that nothing touches the edges.
    constexpr double share = 0.94;
    const Size page = deck.slideSize();
    double top = 0;
    if (const DeckShapePtr title = slide.titleShape()) {
        const double bottom = title->corner().top + title->size().height;
        if (bottom > 0 && bottom < page.height / 2) top = bottom;
    }
    const Size room{page.width, page.height - top};
    PastePlace place;
    place.scale =
        std::min({1.0, share * room.width / natural.width, share * room.height / natural.height});
    place.size = {natural.width * place.scale, natural.height * place.scale};
    place.corner = {(room.width - place.size.width) / 2,
                    top + (room.height - place.size.height) / 2};
    return place;
}

DeckShapePtr pasteSpecial(Deck& deck, DeckSlide& slide, const CallArguments& arguments) {
    return paste(deck, slide, wantedForm(arguments), arguments.source());
}

DeckShapePtr pasteDefault(Deck& deck, DeckSlide& slide, const std::string& source) {
    return paste(deck, slide, PasteAs::Default, source);
}

}  // namespace office::model::powerpoint
