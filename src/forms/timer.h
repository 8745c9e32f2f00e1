#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <utility>

namespace forms {

class Form;

/// A form's timer. It ticks on the thread of the forms, while events are let run, as long as it is
/// enabled and its form is loaded. It belongs to its form for life, as a control does.
class Timer {
public:
    Timer(Form& form, std::string name, std::chrono::milliseconds interval);
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer();

    [[nodiscard]] const std::string& name() const { return name_; }

    std::chrono::milliseconds interval;
    bool enabled = false;
    std::function<void()> onTimer;

private:
    Form& form_;
    std::string name_;
};

}  // namespace forms
