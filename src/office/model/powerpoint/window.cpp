#include <utility>

#include "office/model/item_index.h"
#include "office/model/powerpoint/objects.h"
#include "office/model/powerpoint/paste.h"

namespace office::model::powerpoint {

namespace {

DeckSlidePtr slideInView(Deck& deck, const std::string& source) {
    auto slide = deck.window().slideInView();
    if (!slide) refuse(source, "No slide is in view");
    return slide;
}

class View : public DeckObject<View> {
public:
    using DeckObject::DeckObject;

    static const MemberTable<View>& members() {
        using Self = View;
        static const auto table =
            MemberTable<Self>("View")
                .property("Slide", {},
                          [](Self& self, const CallArguments& arguments) {
                              return slideObject(self.home(),
                                                 slideInView(self.deck(), arguments.source()));
                          })
                .method("GotoSlide", {"Index"},
                        [](Self& self, const CallArguments& arguments) {
                            self.deck().window().show(
                                requiredSlide(self.deck(), arguments.at(0), arguments.source()));
                        })
                .method(
                    "PasteSpecial",
                    {"DataType", "DisplayAsIcon", "IconFileName", "IconIndex", "IconLabel", "Link"},
                    [](Self& self, const CallArguments& arguments) {
                        static_cast<void>(pasteSpecial(
                            self.deck(), *slideInView(self.deck(), arguments.source()), arguments));
                    });
        return table;
    }
};

/// What is selected in a window, as far as it is asked for: the slide in view.
class Selection : public DeckObject<Selection> {
public:
    using DeckObject::DeckObject;

    static const MemberTable<Selection>& members() {
        using Self = Selection;
        static const auto table =
            MemberTable<Self>("Selection")
                .property("SlideRange", {},
                          [](Self& self, const CallArguments& arguments) {
                              return slideObject(self.home(),
                                                 slideInView(self.deck(), arguments.source()));
                          })
                .method("Unselect", {}, [](Self& self) { self.deck().window().unselect(); });
        return table;
    }
};

class DocumentWindow : public DeckObject<DocumentWindow> {
public:
    using DeckObject::DeckObject;

    static const MemberTable<DocumentWindow>& members() {
        using Self = DocumentWindow;
        static const auto table =
            MemberTable<Self>("DocumentWindow")
                .property(
                    "ViewType", [](Self& self) { return self.deck().window().viewType(); },
                    [](Self& self, const Value& viewType) {
                        self.deck().window().setViewType(viewType.toLong());
                    })
                .property("View", [](Self& self) { return makeObject<View>(self.home()); })
                .property("Selection",
                          [](Self& self) { return makeObject<Selection>(self.home()); })
                .method("Activate", {}, [](Self& self) { self.deck().activate(); });
        return table;
    }
};

class DocumentWindows : public ModelObject<DocumentWindows> {
public:
    DocumentWindows(const GuardPtr& guard, std::vector<DeckPtr> decks)
        : ModelObject(guard),
          decks_(std::move(decks)) {}

    static const MemberTable<DocumentWindows>& members() {
        using Self = DocumentWindows;
        static const auto table =
            MemberTable<Self>("DocumentWindows")
                .property("Count", [](Self& self) { return countOf(self.decks_.size()); })
                .property("Item", {"Index"}, [](Self& self, const CallArguments& arguments) {
                    const ItemIndex index(arguments.at(0).toLong(), arguments.source());
                    return windowObject(
                        {self.guard(), self.decks_[index.placeBelow(self.decks_.size())]});
                });
        return table;
    }

private:
    std::vector<DeckPtr> decks_;
};

}  // namespace

Object windowObject(const InDeck& home) {
    return makeObject<DocumentWindow>(home);
}

Object windowsObject(const GuardPtr& guard, std::vector<DeckPtr> decks) {
    return makeObject<DocumentWindows>(guard, std::move(decks));
}

}  // namespace office::model::powerpoint
