#include "office/model/powerpoint/objects.h"

namespace office::model::powerpoint {

namespace {

class PageSetup : public DeckObject<PageSetup> {
public:
    using DeckObject::DeckObject;

    static const MemberTable<PageSetup>& members() {
        using Self = PageSetup;
        static const auto table =
            MemberTable<Self>("PageSetup")
                .property("SlideWidth", [](Self& self) { return self.deck().slideSize().width; })
                .property("SlideHeight", [](Self& self) { return self.deck().slideSize().height; });
        return table;
    }
};

class SlideShowView : public DeckObject<SlideShowView> {
public:
    using DeckObject::DeckObject;

    static const MemberTable<SlideShowView>& members() {
        static const auto table =
            MemberTable<SlideShowView>("SlideShowView").method("Exit", {}, [](SlideShowView& self) {
                self.deck().endSlideShow();
            });
        return table;
    }
};

class SlideShowWindow : public DeckObject<SlideShowWindow> {
public:
    using DeckObject::DeckObject;

    static const MemberTable<SlideShowWindow>& members() {
        static const auto table = MemberTable<SlideShowWindow>("SlideShowWindow")
                                      .property("View", [](SlideShowWindow& self) {
                                          return makeObject<SlideShowView>(self.home());
                                      });
        return table;
    }
};

class Presentation : public DeckObject<Presentation> {
public:
    using DeckObject::DeckObject;
    static const MemberTable<Presentation>& members();
};

const MemberTable<Presentation>& Presentation::members() {
    using Self = Presentation;
    static const auto table =
        MemberTable<Self>("Presentation")
            .property("Name", [](Self& self) { return self.deck().name(); })
            .property("FullName", [](Self& self) { return self.deck().fullName(); })
            .property("ReadOnly", [](Self& self) { return self.deck().isReadOnly(); })
            .property("Slides", [](Self& self) { return slidesObject(self.home()); })
            .property("PageSetup", [](Self& self) { return makeObject<PageSetup>(self.home()); })
            .property("Windows",
                      [](Self& self) { return windowsObject(self.guard(), {self.home().deck}); })
            .property("SlideShowWindow", {},
                      [](Self& self, const CallArguments& arguments) {
                          if (!self.deck().showsSlides())
                              refuse(arguments.source(),
                                     "No slide show of the presentation is running");
                          return makeObject<SlideShowWindow>(self.home());
                      })
            .method("SaveCopyAs", {"FileName"},
                    [](Self& self, const CallArguments& arguments) {
                        self.deck().saveCopy(arguments.at(0).toText());
                    })
            .method("Close", {}, [](Self& self) { self.deck().close(); });
    return table;
}

}  // namespace

Object presentationObject(const InDeck& home) {
    return makeObject<Presentation>(home);
}

}  // namespace office::model::powerpoint
