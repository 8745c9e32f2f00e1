#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "office_double/powerpoint/presentation.h"
#include "office_double/suite_state.h"

namespace office_double {

/// A running PowerPoint.
class PowerPointApplication : public model::Decks,
                              public std::enable_shared_from_this<PowerPointApplication> {
public:
    explicit PowerPointApplication(std::shared_ptr<SuiteState> state) : state_(std::move(state)) {}

    // Building.
    /// An open presentation without slides, which becomes the active one.
    Presentation& addPresentation(const std::string& name,
                                  const std::string& folder = "/documents");
    /// A file that `Presentations.Open` finds; `fill` makes its content.
    void addFile(const std::string& path, std::function<void(Presentation&)> fill);
    void setVersion(std::string version) { version_ = std::move(version); }
    /// Closes everything; each further call of an object is a `Failure`.
    void quit();

    [[nodiscard]] office::Object handle();
    [[nodiscard]] office::model::GuardPtr guard() const { return state_; }
    [[nodiscard]] Presentation* activePresentation() const;
    [[nodiscard]] const std::vector<std::shared_ptr<Presentation>>& presentations() const {
        return presentations_;
    }
    void activate(Presentation& presentation) { active_ = presentation.weak_from_this(); }
    void closePresentation(Presentation& presentation);

    std::string version() override;
    std::vector<model::DeckPtr> open() override;
    model::DeckPtr active() override;
    model::DeckPtr load(const std::string& file, bool withWindow) override;
    model::DeckPtr create(bool withWindow) override;

private:
    void requireRunning() const;

    std::shared_ptr<SuiteState> state_;
    std::string version_ = "16.0";
    std::vector<std::shared_ptr<Presentation>> presentations_;
    std::weak_ptr<Presentation> active_;
    std::map<std::string, std::function<void(Presentation&)>> files_;
    bool hasQuit_ = false;
};

}  // namespace office_double
