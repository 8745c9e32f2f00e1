#include "desktop/stacking.h"

#include <algorithm>
#include <tuple>

#include "desktop/control_view.h"
#include "forms/controls.h"

namespace desktop {

std::vector<ControlView*> fromBackToFront(std::vector<ControlView*> views) {
    const auto key = [](const ControlView* view) {
        return std::tuple(!view->isLightweight(), view->control().layer());
    };
    std::stable_sort(views.begin(), views.end(), [&key](const auto* left, const auto* right) {
        return key(left) < key(right);
    });
    return views;
}

namespace {

void visit(const forms::Form& form, const forms::Control* container,
           std::vector<const forms::Control*>& visited) {
    struct Sibling {
        bool isTitleBar;
        int turn;
        const forms::Control* control;
    };
    std::vector<Sibling> siblings;
    int made = 0;
    for (const forms::Control* control : form.controls()) {
        ++made;
        if (control->container() != container) continue;
        siblings.push_back({control->controlClass() == forms::ControlClass::TitelBar,
                            control->tabIndex >= 0 ? control->tabIndex : made, control});
    }
    std::stable_sort(siblings.begin(), siblings.end(), [](const Sibling& a, const Sibling& b) {
        return std::tuple(a.isTitleBar, a.turn) < std::tuple(b.isTitleBar, b.turn);
    });
    for (const Sibling& sibling : siblings) {
        visited.push_back(sibling.control);
        if (sibling.control->controlClass() == forms::ControlClass::Frame) {
            visit(form, sibling.control, visited);
        }
    }
}

}  // namespace

std::vector<const forms::Control*> tabOrderOf(const forms::Form& form) {
    std::vector<const forms::Control*> visited;
    visit(form, nullptr, visited);
    return visited;
}

}  // namespace desktop
