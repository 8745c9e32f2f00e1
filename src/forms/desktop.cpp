#include "forms/desktop.h"

#include <algorithm>

namespace forms {

void Desktop::load(Form& form) {
    if (isLoaded(form)) return;
    loaded_.push_back(&form);
    form.Form_Load();
}

void Desktop::show(Form& form, ShowMode mode) {
    load(form);
    if (!isLoaded(form)) return;
    openWindow(form, mode);
    if (!isShown(form)) shown_.push_back(&form);
    form.Form_Activate();
    if (mode == ShowMode::Modal && isLoaded(form)) runModal(form);
}

void Desktop::unload(Form& form) {
    if (!isLoaded(form)) return;
    // Out of the collection first: its own procedure may ask for all forms to be unloaded.
    std::erase(loaded_, &form);
    std::erase(shown_, &form);
    closeWindow(form);
    form.Form_Unload();
}

bool Desktop::isLoaded(const Form& form) const {
    return std::find(loaded_.begin(), loaded_.end(), &form) != loaded_.end();
}

bool Desktop::isShown(const Form& form) const {
    return std::find(shown_.begin(), shown_.end(), &form) != shown_.end();
}

Form* Desktop::findLoaded(std::string_view name) const {
    const auto found = std::find_if(loaded_.begin(), loaded_.end(), [&](const Form* form) {
        return sameFormName(form->name(), name);
    });
    return found == loaded_.end() ? nullptr : *found;
}

void Desktop::unloadAll() {
    while (!loaded_.empty()) {
        const std::size_t before = loaded_.size();
        unload(*loaded_.back());
        if (loaded_.size() >= before) return;
    }
}

void Desktop::forget(Form& form) {
    std::erase(shown_, &form);
    if (std::erase(loaded_, &form) != 0) closeWindow(form);
}

}  // namespace forms
