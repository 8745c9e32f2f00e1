#pragma once

#include <concepts>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/failure.h"
#include "office/model/model_object.h"
#include "office/model/powerpoint/deck.h"

/// The classes of PowerPoint's object model, made here and reached by their members only.
namespace office::model::powerpoint {

/// What every object of a presentation holds: its presentation, and what its members run through.
struct InDeck {
    GuardPtr guard;
    DeckPtr deck;
};

/// Base of the classes that stand for a presentation, or for something in it.
template <class Self, class Kind = Deck>
class DeckObject : public HomedObject<Self, PartOf<InDeck, Kind>> {
public:
    DeckObject(InDeck home, std::shared_ptr<Kind> part)
        : HomedObject<Self, PartOf<InDeck, Kind>>({std::move(home), std::move(part)}) {}
    explicit DeckObject(const InDeck& home) requires std::same_as<Kind, Deck>
        : DeckObject(home, home.deck) {}

    [[nodiscard]] Deck& deck() const { return *this->home().deck; }
    [[nodiscard]] Kind& part() const { return *this->home().part; }
};

/// Beyond this PowerPoint takes no place, no length and no other measure of a shape.
inline constexpr double furthestPt = 169056;

[[nodiscard]] Object applicationObject(const GuardPtr& guard, DecksPtr decks);
[[nodiscard]] Object presentationObject(const InDeck& home);
[[nodiscard]] Object windowObject(const InDeck& home);
/// The windows of presentations, one each.
[[nodiscard]] Object windowsObject(const GuardPtr& guard, std::vector<DeckPtr> decks);
[[nodiscard]] Object slidesObject(const InDeck& home);
[[nodiscard]] Object slideObject(const InDeck& home, const DeckSlidePtr& slide);
[[nodiscard]] Object shapesObject(const InDeck& home, const DeckSlidePtr& slide);
[[nodiscard]] Object shapeObject(const InDeck& home, const DeckShapePtr& shape);
/// Parts of a shape. The text's: `Failure` 1004 for a shape that holds none.
[[nodiscard]] Object textFrameObject(const InDeck& home, const DeckShapePtr& shape);
[[nodiscard]] Object shadowObject(const InDeck& home, const DeckShapePtr& shape);
[[nodiscard]] Object reflectionObject(const InDeck& home, const DeckShapePtr& shape);
[[nodiscard]] Object adjustmentsObject(const InDeck& home, const DeckShapePtr& shape);

/// The slide at a place from 1. `Failure` 9 if there is none.
[[nodiscard]] DeckSlidePtr requiredSlide(Deck& deck, const Value& place, const std::string& source);

}  // namespace office::model::powerpoint
