#include "forms/timer.h"

#include <utility>

#include "forms/form.h"

namespace forms {

Timer::Timer(Form& form, std::string name, std::chrono::milliseconds theInterval)
    : interval(theInterval),
      form_(form),
      name_(std::move(name)) {
    form_.timers_.push_back(this);
}

Timer::~Timer() {
    std::erase(form_.timers_, this);
}

}  // namespace forms
