#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/web_browser.h"

namespace forms_double {

/// What a page that has been loaded answers, and whether it ever gets that far. A test sets it;
/// every browser of one desktop shares it.
struct PageScript {
    std::map<std::string, std::string, std::less<>> fields;
    /// By the id of the element asked for.
    std::map<std::string, int, std::less<>> contentHeights;
    bool completes = true;
    /// The texts of files by their paths; all are empty where it is not set.
    const std::map<std::string, std::string, std::less<>>* files = nullptr;
};

/// A browser that loads a page by reading its file, when events are let run. It draws nothing;
/// links are found in the text of the page.
class ScriptedBrowser : public forms::BrowserView {
public:
    ScriptedBrowser(forms::WebBrowser& control, const PageScript& script)
        : control_(control),
          script_(script) {}

    /// What was asked for, in order; a navigation that the control cancelled isn't among it.
    std::vector<std::string> navigations;
    /// Of the body and the root, and of the body alone.
    std::map<std::string, std::string, std::less<>> styles;
    std::map<std::string, std::string, std::less<>> bodyStyles;
    /// By class and property: "content-area height".
    std::map<std::string, std::string, std::less<>> divStyles;

    /// The text of the page that is shown.
    [[nodiscard]] const std::string& page() const { return page_; }
    [[nodiscard]] bool hasLink(std::string_view address) const;
    /// A user's click on a link of the page: the control is asked, and the link is followed unless
    /// it cancels. True if it did. A page without the link fails the test.
    bool click(std::string_view address);

    /// Ends a load that is under way.
    void finishLoading();

    void navigate(std::string_view url) override;
    [[nodiscard]] bool isComplete() override { return isLoaded_; }
    [[nodiscard]] std::optional<std::string> fieldValue(std::string_view id) override;
    [[nodiscard]] int contentHeight(std::string_view id) override;
    void setStyle(std::string_view property, std::string_view value) override;
    void setBodyStyle(std::string_view property, std::string_view value) override;
    void setDivStyle(std::string_view className, std::string_view property,
                     std::string_view value) override;

private:
    forms::WebBrowser& control_;
    const PageScript& script_;
    std::string pending_;
    std::string page_;
    bool isLoaded_ = false;
};

}  // namespace forms_double
