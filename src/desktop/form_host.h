#pragma once

#include <memory>

#include "desktop/form_timers.h"
#include "desktop/form_window.h"
#include "desktop/view_host.h"

namespace desktop {

class QtDesktop;

/// One loaded form as the desktop keeps it: its timers, its window once it is shown, and the way of
/// events to it.
class FormHost final : public ViewHost {
public:
    FormHost(forms::Form& form, QtDesktop& desktop);
    ~FormHost() override;

    [[nodiscard]] bool isOf(const forms::Form& form) const { return form_ == &form; }
    /// Whether its window is to be above those of all programs: as the form says, or because it is
    /// modal above one that is.
    [[nodiscard]] bool isTopmost() const;
    /// Null until the form has been shown.
    [[nodiscard]] FormWindow* window() const { return window_.get(); }
    /// Whether an event procedure of the form is under way, so that it must not be destroyed.
    [[nodiscard]] bool isBusy() const { return running_ > 0; }

    void open(forms::ShowMode mode, QWindow* parent);
    void sync();
    /// Destroys what has gone, unless an event procedure is under way.
    void bury();
    /// Hides the window and forgets the form.
    void letGo();

    void deliver(std::function<void()> event) override;
    void deliverLater(std::function<void()> event) override;
    void holdEvents(bool hold) override;
    [[nodiscard]] bool keyboardInUse() const override;
    [[nodiscard]] QWebEngineProfile& browserProfile() override;

private:
    forms::Form* form_;
    QtDesktop& desktop_;
    FormTimers timers_;
    std::unique_ptr<FormWindow> window_;
    int running_ = 0;
};

}  // namespace desktop
