#include "desktop/form_views.h"

#include <QtWidgets/QAbstractButton>

#include <algorithm>
#include <tuple>
#include <utility>

#include "forms/controls.h"

namespace desktop {

namespace {

/// Appends the controls in one container as Tab visits them: by the order of making, what stands in
/// a frame at the frame's turn, the title bar last.
void visit(const forms::Form& form, const forms::Control* container,
           std::vector<const forms::Control*>& visited) {
    std::vector<const forms::Control*> siblings;
    for (const forms::Control* control : form.controls()) {
        if (control->container() == container) siblings.push_back(control);
    }
    std::stable_partition(siblings.begin(), siblings.end(), [](const forms::Control* sibling) {
        return sibling->controlClass() != forms::ControlClass::TitleBar;
    });
    for (const forms::Control* sibling : siblings) {
        visited.push_back(sibling);
        if (sibling->controlClass() == forms::ControlClass::Frame) visit(form, sibling, visited);
    }
}

/// The widgets within one view that Tab stops at.
std::vector<QWidget*> tabStopsOf(QWidget& view) {
    std::vector<QWidget*> stops;
    if (view.focusPolicy() != Qt::NoFocus) stops.push_back(&view);
    for (QObject* child : view.children()) {
        auto* button = qobject_cast<QAbstractButton*>(child);
        if (button != nullptr) stops.push_back(button);
    }
    return stops;
}

}  // namespace

void FormViews::sync() {
    for (forms::Control* control : form_.controls()) {
        if (viewOf_.contains(control)) continue;
        ControlView* view = makeControlView(*control, parentFor(*control), host_);
        viewOf_.emplace(control, view);
        views_.push_back(view);
    }
    for (ControlView* view : views_) view->sync();
    stack();
    setTabOrder();
}

void FormViews::detach() {
    const std::vector<forms::Control*>& controls = form_.controls();
    for (ControlView* view : views_) {
        view->detach(std::find(controls.begin(), controls.end(), &view->control()) !=
                     controls.end());
    }
}

ControlView* FormViews::of(const forms::Control& control) const {
    const auto found = viewOf_.find(&control);
    return found == viewOf_.end() ? nullptr : found->second;
}

ControlView* FormViews::holding(const QWidget& widget) const {
    const auto found = std::find_if(views_.begin(), views_.end(), [&widget](ControlView* view) {
        const QWidget& shown = view->widget();
        return &shown == &widget || (shown.isAncestorOf(&widget) &&
                                     view->control().controlClass() != forms::ControlClass::Frame);
    });
    return found == views_.end() ? nullptr : *found;
}

ControlView* FormViews::firstStop(const QWidget& window) const {
    const auto first = std::find_if(tabOrder_.begin(), tabOrder_.end(), [&](const auto* control) {
        const QWidget& shown = of(*control)->widget();
        return shown.isVisibleTo(&window) && shown.isEnabled() &&
               (shown.focusPolicy() & Qt::TabFocus) != 0;
    });
    return first == tabOrder_.end() ? nullptr : of(**first);
}

QWidget& FormViews::parentFor(const forms::Control& control) const {
    if (control.container() == nullptr) return plate_;
    ControlView* frame = of(*control.container());
    return frame == nullptr ? plate_ : frame->widget();
}

/// Those without a window of their own (texts, pictures, shapes) stand behind all that have one,
/// whatever their layers; within each kind the layer counts, and then the order of making.
void FormViews::stack() {
    std::vector<ControlView*> views = views_;
    std::stable_sort(views.begin(), views.end(), [](const auto* left, const auto* right) {
        return std::tuple(!left->isLightweight(), left->control().layer()) <
               std::tuple(!right->isLightweight(), right->control().layer());
    });
    std::vector<const forms::Control*> order;
    order.reserve(views.size());
    for (const ControlView* view : views) order.push_back(&view->control());
    if (order == stacked_) return;
    stacked_ = std::move(order);
    for (ControlView* view : views) view->widget().raise();
}

void FormViews::setTabOrder() {
    std::vector<const forms::Control*> order;
    visit(form_, nullptr, order);
    if (order == tabOrder_) return;
    tabOrder_ = std::move(order);
    QWidget* before = nullptr;
    for (const forms::Control* control : tabOrder_) {
        for (QWidget* stop : tabStopsOf(of(*control)->widget())) {
            if (before != nullptr) QWidget::setTabOrder(before, stop);
            before = stop;
        }
    }
}

}  // namespace desktop
