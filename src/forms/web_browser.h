#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "forms/control.h"

namespace forms {

/// What stands behind a browser control while its form has a window. All members answer about the
/// page that is loaded; without one they give nothing.
class BrowserView {
public:
    BrowserView() = default;
    BrowserView(const BrowserView&) = delete;
    BrowserView& operator=(const BrowserView&) = delete;
    virtual ~BrowserView() = default;

    virtual void navigate(std::string_view url) = 0;
    /// `ReadyState` "complete".
    [[nodiscard]] virtual bool isComplete() = 0;
    /// The `value` of the element with this id; nothing if the page hasn't got one.
    [[nodiscard]] virtual std::optional<std::string> fieldValue(std::string_view id) = 0;
    /// `ScrollHeight` of the element with this id, or of the body if there is none, in pixels of an
    /// unscaled screen; 0 while there is no layout. Where it is 0, its `offsetHeight`.
    [[nodiscard]] virtual int contentHeight(std::string_view id) = 0;
    /// Sets a style of the body and of the document's root.
    virtual void setStyle(std::string_view property, std::string_view value) = 0;
    /// The same of the body alone.
    virtual void setBodyStyle(std::string_view property, std::string_view value) = 0;
    /// The same of each `div` that is of this class and no other.
    virtual void setDivStyle(std::string_view className, std::string_view property,
                             std::string_view value) = 0;
};

/// The browser strip of a form. Without a view behind it (no window, or a broken control) every
/// member does nothing, and what the form's other controls say stays good.
class WebBrowser : public Control {
public:
    WebBrowser(Form& form, std::string name, Place at)
        : Control(form, ControlClass::WebBrowser, std::move(name), at) {}

    /// `Navigate2`: returns at once, the page comes later.
    void navigate(std::string_view url);
    /// What was asked for last, so that a view that comes later can show it.
    [[nodiscard]] const std::string& url() const { return url_; }

    /// Null while there is no window.
    BrowserView* view = nullptr;
    /// The folder whose pictures and style sheets pages may show; empty: none. Nothing else is
    /// loaded but the page itself, from nowhere, and no dialog of a page or a certificate appears.
    std::string resourceFolder;

    /// Asked before a link is followed: true cancels it.
    std::function<bool(std::string_view url)> onBeforeNavigate;
    std::function<void()> onDocumentComplete;

private:
    std::string url_;
};

}  // namespace forms
