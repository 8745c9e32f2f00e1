#include <fmt/format.h>

#include <utility>

#include "office/model/item_index.h"
#include "office/model/powerpoint/objects.h"
#include "office/model/powerpoint/paste.h"
#include "office/text.h"

namespace office::model::powerpoint {

namespace {

/// Base of the objects that stand for no presentation of their own.
template <class Self>
class ApplicationObject : public ModelObject<Self> {
public:
    ApplicationObject(const GuardPtr& guard, DecksPtr decks)
        : ModelObject<Self>(guard),
          decks_(std::move(decks)) {}

    [[nodiscard]] Decks& decks() const { return *decks_; }
    [[nodiscard]] const DecksPtr& decksPtr() const { return decks_; }
    [[nodiscard]] InDeck in(DeckPtr deck) const { return {this->guard(), std::move(deck)}; }

private:
    DecksPtr decks_;
};

class Presentations : public ApplicationObject<Presentations> {
public:
    using ApplicationObject::ApplicationObject;
    static const MemberTable<Presentations>& members();

private:
    [[nodiscard]] Object object(DeckPtr deck) const {
        return presentationObject(in(std::move(deck)));
    }
    Object open(const CallArguments& arguments);
};

const MemberTable<Presentations>& Presentations::members() {
    using Self = Presentations;
    static const auto table =
        MemberTable<Self>("Presentations")
            .property("Count", [](Self& self) { return countOf(self.decks().open().size()); })
            .property("Item", {"Index"},
                      [](Self& self, const CallArguments& arguments) {
                          return self.object(ItemIndex(arguments.at(0), arguments.source())
                                                 .of(self.decks().open(), [](const DeckPtr& deck) {
                                                     return deck->name();
                                                 }));
                      })
            .method("Open", {"FileName", "ReadOnly", "Untitled", "WithWindow"}, &Self::open)
            .method("Add", {"WithWindow"}, [](Self& self, const CallArguments& arguments) {
                return self.object(self.decks().create(arguments.at(0, true).toBool()));
            });
    return table;
}

Object Presentations::open(const CallArguments& arguments) {
    if (arguments.at(1, false).toBool() || arguments.at(2, false).toBool())
        refuseCall(arguments.source(),
                   "A presentation is opened here under its name and to be changed");
    return object(decks().load(arguments.at(0).toText(), arguments.at(3, true).toBool()));
}

/// The windows of the slide shows that run.
class SlideShowWindows : public ApplicationObject<SlideShowWindows> {
public:
    using ApplicationObject::ApplicationObject;

    static const MemberTable<SlideShowWindows>& members() {
        static const auto table =
            MemberTable<SlideShowWindows>("SlideShowWindows")
                .property("Count", [](SlideShowWindows& self) {
                    auto decks = self.decks().open();
                    std::erase_if(decks, [](const DeckPtr& deck) { return !deck->showsSlides(); });
                    return countOf(decks.size());
                });
        return table;
    }
};

/// The ribbon, as far as its commands are run by name. What it does has been done when it returns.
class CommandBars : public ApplicationObject<CommandBars> {
public:
    using ApplicationObject::ApplicationObject;

    static const MemberTable<CommandBars>& members() {
        static const auto table = MemberTable<CommandBars>("CommandBars")
                                      .method("ExecuteMso", {"idMso"}, &CommandBars::execute)
                                      .method("ReleaseFocus", {}, [](CommandBars&) {});
        return table;
    }

private:
    void execute(const CallArguments& arguments) {
        const std::string& source = arguments.source();
        const std::string command = arguments.at(0).toText();
        if (!sameIgnoringCase(command, "PasteSourceFormatting"))
            refuseCall(source, fmt::format("There is no command \"{}\" here", command));
        const DeckPtr deck = decks().active();
        const DeckSlidePtr slide = deck ? deck->window().slideInView() : nullptr;
        if (!slide) refuse(source, "No slide is in view");
        static_cast<void>(pasteDefault(*deck, *slide, source));
    }
};

class Application : public ApplicationObject<Application> {
public:
    using ApplicationObject::ApplicationObject;
    static const MemberTable<Application>& members();

private:
    [[nodiscard]] InDeck active(const std::string& source) const;
};

const MemberTable<Application>& Application::members() {
    using Self = Application;
    static const auto table =
        MemberTable<Self>("Application")
            .property("Version", [](Self& self) { return self.decks().version(); })
            .property(
                "Presentations",
                [](Self& self) { return makeObject<Presentations>(self.guard(), self.decksPtr()); })
            .property("ActivePresentation", {},
                      [](Self& self, const CallArguments& arguments) {
                          return presentationObject(self.active(arguments.source()));
                      })
            .property("ActiveWindow", {},
                      [](Self& self, const CallArguments& arguments) {
                          return windowObject(self.active(arguments.source()));
                      })
            .property("Windows",
                      [](Self& self) { return windowsObject(self.guard(), self.decks().open()); })
            .property("SlideShowWindows",
                      [](Self& self) {
                          return makeObject<SlideShowWindows>(self.guard(), self.decksPtr());
                      })
            .property("CommandBars", [](Self& self) {
                return makeObject<CommandBars>(self.guard(), self.decksPtr());
            });
    return table;
}

InDeck Application::active(const std::string& source) const {
    auto deck = decks().active();
    if (!deck) refuse(source, "No presentation is open");
    return in(std::move(deck));
}

}  // namespace

Object applicationObject(const GuardPtr& guard, DecksPtr decks) {
    return makeObject<Application>(guard, std::move(decks));
}

}  // namespace office::model::powerpoint
