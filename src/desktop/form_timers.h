#pragma once

#include <QtCore/QTimer>

#include <functional>
#include <memory>
#include <vector>

#include "forms/form.h"

namespace desktop {

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

    [[nodiscard]] bool hasTimer(const forms::Timer* timer) const;
    [[nodiscard]] Running start(forms::Timer& timer);
    void ticked(forms::Timer* timer);

    forms::Form& form_;
    std::function<void(std::function<void()>)> tick_;
    std::vector<Running> running_;
    /// Kept to the end: a clock may be in the middle of the tick that does away with it.
    std::vector<std::unique_ptr<QTimer>> ended_;
    /// Those whose event is under way: a timer does not interrupt itself.
    std::vector<const forms::Timer*> busy_;
};

}  // namespace desktop
