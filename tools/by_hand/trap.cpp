#include "trap.h"

#include <QtWidgets/QWidget>

#include <utility>

#include "office/text.h"
#include "sight.h"

namespace by_hand {

Trap::Trap(const desktop::QtDesktop& desktop, Prey prey)
    : desktop_(desktop),
      prey_(std::move(prey)) {
    timer_.setInterval(0);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start();
}

void Trap::look() {
    const forms::Form* form = desktop_.findLoaded(prey_.form);
    const QWidget* plate = form == nullptr ? nullptr : desktop_.plateOf(*form);
    if (plate == nullptr || !plate->window()->isVisible()) return;
    const forms::Control& control = controlOf(desktop_, prey_.form, prey_.control);
    if (office::leadingNumber(control.caption) < prey_.atLeast) return;
    caught_ = takePicture(desktop_, prey_.form, "", prey_.file);
    timer_.stop();
}

}  // namespace by_hand
