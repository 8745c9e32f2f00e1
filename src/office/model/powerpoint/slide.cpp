#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "office/model/item_index.h"
#include "office/model/powerpoint/objects.h"

namespace office::model::powerpoint {

namespace {

std::int32_t knownLayout(const Value& number, const std::string& source) {
    const std::int32_t wanted = number.toLong();
    if (std::find(layout::given.begin(), layout::given.end(), wanted) == layout::given.end())
        refuseCall(source, fmt::format("There is no slide layout {} here", wanted));
    return wanted;
}

class Slides : public DeckObject<Slides> {
public:
    using DeckObject::DeckObject;
    static const MemberTable<Slides>& members();

private:
    Object add(const CallArguments& arguments);
};

const MemberTable<Slides>& Slides::members() {
    using Self = Slides;
    static const auto table =
        MemberTable<Self>("Slides")
            .property("Count", [](Self& self) { return self.deck().slideCount(); })
            .property("Item", {"Index"},
                      [](Self& self, const CallArguments& arguments) {
                          return slideObject(
                              self.home(),
                              requiredSlide(self.deck(), arguments.at(0), arguments.source()));
                      })
            .method("Add", {"Index", "Layout"}, &Self::add);
    return table;
}

Object Slides::add(const CallArguments& arguments) {
    const std::int32_t place = arguments.at(0).toLong();
    const auto slide = deck().addSlide(place, knownLayout(arguments.at(1), arguments.source()));
    if (!slide)
        throw Failure(
            FailureNumber::SubscriptOutOfRange, arguments.source(),
            fmt::format("A slide can't be added at {} to {} slides", place, deck().slideCount()));
    return slideObject(home(), slide);
}

class Slide : public DeckObject<Slide, DeckSlide> {
public:
    using DeckObject::DeckObject;

    static const MemberTable<Slide>& members() {
        using Self = Slide;
        static const auto table =
            MemberTable<Self>("Slide")
                .property("SlideIndex", [](Self& self) { return self.part().place(); })
                .property(
                    "Layout", [](Self& self) { return self.part().layout(); },
                    [](Self& self, const Value& number) {
                        self.part().setLayout(knownLayout(number, "Slide.Layout"));
                    })
                .property("Shapes",
                          [](Self& self) { return shapesObject(self.home(), self.home().part); })
                .method("Select", {},
                        [](Self& self) { self.deck().window().show(self.home().part); })
                .method("Delete", {}, [](Self& self) { self.part().remove(); });
        return table;
    }
};

}  // namespace

DeckSlidePtr requiredSlide(Deck& deck, const Value& place, const std::string& source) {
    auto slide = deck.slideAt(place.toLong());
    if (!slide) ItemIndex(place.toLong(), source).fail();
    return slide;
}

Object slidesObject(const InDeck& home) {
    return makeObject<Slides>(home);
}

Object slideObject(const InDeck& home, const DeckSlidePtr& slide) {
    return makeObject<Slide>(home, slide);
}

}  // namespace office::model::powerpoint
