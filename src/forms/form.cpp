#include "forms/form.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "forms/desktop.h"

namespace forms {

bool sameFormName(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) ==
               std::tolower(static_cast<unsigned char>(b));
    });
}

Form::Form(Desktop& desktop, std::string name, Twips width, Twips height)
    : place{0, 0, width, height},
      desktop_(desktop),
      name_(std::move(name)),
      naturalWidth_(width),
      naturalHeight_(height) {}

Form::~Form() {
    desktop_.forget(*this);
}

Control* Form::find(std::string_view name) const {
    const auto found =
        std::find_if(controls_.begin(), controls_.end(),
                     [&](const Control* control) { return sameFormName(control->name(), name); });
    return found == controls_.end() ? nullptr : *found;
}

Control::Control(Form& form, ControlClass controlClass, std::string name, Place thePlace,
                 Frame* container)
    : place(thePlace),
      form_(form),
      class_(controlClass),
      name_(std::move(name)),
      container_(container) {
    form_.controls_.push_back(this);
}

Control::~Control() {
    std::erase(form_.controls_, this);
    if (form_.focus == this) form_.focus = nullptr;
}

void Control::setZOrder(ZOrder order) {
    for (const Control* other : form_.controls_) {
        layer_ = order == ZOrder::Front ? std::max(layer_, other->layer_ + 1)
                                        : std::min(layer_, other->layer_ - 1);
    }
}

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
