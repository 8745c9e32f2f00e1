#pragma once

#include <QtCore/QTimer>

#include <functional>
#include <memory>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/form_window.h"

namespace desktop {

class QtDesktop;

/// The timers of one loaded form.
class FormTimers {
public:
    /// `tick` brings an event to the form.
    FormTimers(forms::Form& form, std::function<void(std::function<void()>)> tick)
        : form_(form),
          tick_(std::move(tick)) {}

    /// Starts and stops them as the form has set them.
    void sync();
    void stopAll();

private:
    struct Running {
        forms::Timer* timer;
        std::unique_ptr<QTimer> clock;
    };

    [[nodiscard]] Running start(forms::Timer& timer);
    void ticked(forms::Timer& timer);

    forms::Form& form_;
    std::function<void(std::function<void()>)> tick_;
    std::vector<Running> running_;
    /// Those whose event is under way: a timer does not interrupt itself.
    std::vector<const forms::Timer*> busy_;
};

/// One loaded form as the desktop keeps it: its timers, its window once it is shown, and the way of
/// events to it.
class LoadedForm final : public ViewHost {
public:
    LoadedForm(forms::Form& form, QtDesktop& desktop);
    ~LoadedForm() override;

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
    /// Hides the window and forgets the form.
    void detach();

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
