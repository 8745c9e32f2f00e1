#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "office_double/double_object.h"
#include "office_double/powerpoint/presentation.h"
#include "office_double/powerpoint/window.h"

namespace office_double {

/// A running PowerPoint.
class PowerPointApplication : public Doubled<PowerPointApplication> {
public:
    using Doubled::Doubled;

    static const office::MemberTable<PowerPointApplication>& members();

    // Building.
    /// An open presentation without slides, which becomes the active one.
    Presentation& addPresentation(const std::string& name,
                                  const std::string& folder = "/documents");
    /// A file that `Presentations.Open` finds; `fill` makes its content.
    void addFile(const std::string& path, std::function<void(Presentation&)> fill);
    void setVersion(std::string version) { version_ = std::move(version); }

    [[nodiscard]] Presentation* activePresentation() const;
    [[nodiscard]] const std::vector<std::shared_ptr<Presentation>>& presentations() const {
        return presentations_;
    }
    void activate(Presentation& presentation) { active_ = presentation.weak_from_this(); }
    void closePresentation(Presentation& presentation);

private:
    [[nodiscard]] Presentation& requiredPresentation(const std::string& member) const;
    Value readPresentations();
    Value readWindows();
    Value readSlideShowWindows();
    Value open(const CallArguments& arguments);

    std::string version_ = "16.0";
    std::vector<std::shared_ptr<Presentation>> presentations_;
    std::weak_ptr<DoubleObject> active_;
    std::map<std::string, std::function<void(Presentation&)>> files_;
};

}  // namespace office_double
