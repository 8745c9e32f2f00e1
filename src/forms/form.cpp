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

}  // namespace forms
