#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "office/model/powerpoint/objects.h"
#include "office/package/presentation/file_decks.h"
#include "office_double/excel/picture.h"
#include "office_double/suite_state.h"
#include "support/package_edit.h"

namespace office_double {

namespace model = office::model::powerpoint;
namespace package = office::package;

/// A shape as a test sees it, also after its presentation has been closed.
struct Shape {
    model::InDeck home;
    model::DeckShapePtr part;

    [[nodiscard]] office::Object handle() const { return model::shapeObject(home, part); }
    [[nodiscard]] excel::Box box() const;
    [[nodiscard]] bool isPicture() const { return part->textFrame() == nullptr; }
    [[nodiscard]] std::string text() const { return part->textFrame()->words(); }
    [[nodiscard]] std::string alternativeText() const { return part->alternativeText(); }
    [[nodiscard]] bool hasShadow() const { return part->shadow().isVisible; }
};

struct Slide {
    model::InDeck home;
    model::DeckSlidePtr part;

    [[nodiscard]] Shape addPicture(const excel::Box& box) const;
    [[nodiscard]] std::vector<Shape> shapes() const;
    [[nodiscard]] Shape title() const { return {home, part->titleShape()}; }
};

/// A presentation of which a slide show can run.
struct Presentation : package::FileDeck {
    template <class... Args>
    explicit Presentation(office::model::GuardPtr guardOfAll, Args&&... args)
        : FileDeck(std::forward<Args>(args)...),
          guard(std::move(guardOfAll)) {}

    using FileDeck::addSlide;
    Slide addSlide(std::int32_t layout = model::layout::titleOnly);
    Presentation& addSlides(int number);
    Presentation& runSlideShow();

    [[nodiscard]] model::InDeck home() { return {guard, shared_from_this()}; }
    [[nodiscard]] office::Object handle() { return model::presentationObject(home()); }
    [[nodiscard]] Slide slide(std::int32_t place) { return {home(), slideAt(place)}; }

    bool isReadOnly() override { return readOnly; }
    bool showsSlides() override { return showRuns; }
    void endSlideShow() override { showRuns = false; }

    office::model::GuardPtr guard;
    bool readOnly = false;
    bool showRuns = false;
};

/// A running PowerPoint: the one for files, with calls recorded and failures planned.
class PowerPointApplication : public package::FileDecks {
public:
    explicit PowerPointApplication(std::shared_ptr<SuiteState> state);

    /// An open presentation, which becomes the active one; without slides if it is a new one.
    Presentation& addPresentation(const std::string& name, const std::string& folder = "/documents",
                                  package::Package content = support::emptyDeck());
    /// A file of another kind, which `Presentations.Open` reads all the same.
    void addFile(const std::string& path, const std::function<void(Presentation&)>& fill) {
        files_[path] = fill;
    }
    void setVersion(const std::string& version) { version_ = version; }

    [[nodiscard]] office::Object handle() {
        return model::applicationObject(state_, shared_from_this());
    }
    std::string version() override { return version_; }
    model::DeckPtr load(const std::string& file, bool withWindow) override;

private:
    package::FileDeckPtr make(package::Package content, const std::string& path,
                              const std::string& name,
                              const package::FileRulesPtr& rules) override {
        return std::make_shared<Presentation>(state_, std::move(content), path, name, rules);
    }

    std::shared_ptr<SuiteState> state_;
    std::string version_ = "16.0";
    std::map<std::string, std::function<void(Presentation&)>> files_;
};

}  // namespace office_double
