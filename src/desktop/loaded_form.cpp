#include "desktop/loaded_form.h"

#include <QtCore/QScopeGuard>

#include <algorithm>
#include <utility>

#include "desktop/qt_desktop.h"

namespace desktop {

namespace {

bool wantsToRun(const forms::Timer& timer) {
    return timer.enabled && timer.interval.count() > 0;
}

}  // namespace

void FormTimers::stopAll() {
    for (const Running& each : running_) each.clock->stop();
}

void FormTimers::sync() {
    for (forms::Timer* timer : form_.timers()) {
        auto known = std::find_if(running_.begin(), running_.end(),
                                  [timer](const Running& each) { return each.timer == timer; });
        if (known == running_.end()) {
            if (!wantsToRun(*timer)) continue;
            running_.push_back(start(*timer));
            continue;
        }
        QTimer& clock = *known->clock;
        if (clock.intervalAsDuration() != timer->interval) clock.setInterval(timer->interval);
        if (clock.isActive() == wantsToRun(*timer)) continue;
        wantsToRun(*timer) ? clock.start() : clock.stop();
    }
}

FormTimers::Running FormTimers::start(forms::Timer& timer) {
    auto clock = std::make_unique<QTimer>();
    clock->setTimerType(timer.interval < std::chrono::milliseconds{20} ? Qt::PreciseTimer
                                                                       : Qt::CoarseTimer);
    clock->setInterval(timer.interval);
    QObject::connect(clock.get(), &QTimer::timeout, clock.get(),
                     [this, which = &timer] { ticked(*which); });
    clock->start();
    return {&timer, std::move(clock)};
}

void FormTimers::ticked(forms::Timer& timer) {
    if (std::find(busy_.begin(), busy_.end(), &timer) != busy_.end()) return;
    tick_([this, &timer] {
        if (!timer.enabled || !timer.onTimer) return;
        busy_.push_back(&timer);
        const auto freeAtEnd = qScopeGuard([this, &timer] { std::erase(busy_, &timer); });
        timer.onTimer();
    });
}

LoadedForm::LoadedForm(forms::Form& form, QtDesktop& desktop)
    : form_(&form),
      desktop_(desktop),
      timers_(form, [this](std::function<void()> tick) {
          // A tick that comes while a page is being asked is lost: the next one follows anyway.
          if (!desktop_.holdsEvents()) deliver(std::move(tick));
      }) {}

LoadedForm::~LoadedForm() = default;

bool LoadedForm::isTopmost() const {
    if (form_ == nullptr) return false;
    const bool isModal = window_ != nullptr && window_->windowModality() != Qt::NonModal;
    return form_->topmost || (isModal && desktop_.hasTopmostBelow(*this));
}

void LoadedForm::open(forms::ShowMode mode, QWindow* parent) {
    if (window_ == nullptr) window_ = std::make_unique<FormWindow>(*form_, *this);
    window_->open(mode, parent);
}

void LoadedForm::sync() {
    if (form_ == nullptr) return;
    timers_.sync();
    if (window_ != nullptr) window_->sync();
}

void LoadedForm::detach() {
    timers_.stopAll();
    if (window_ != nullptr) window_->detach();
    form_ = nullptr;
}

void LoadedForm::deliver(std::function<void()> event) {
    if (form_ == nullptr) return;
    if (desktop_.holdsEvents()) {
        deliverLater(std::move(event));
        return;
    }
    ++running_;
    desktop_.run(event);
    --running_;
}

void LoadedForm::deliverLater(std::function<void()> event) {
    desktop_.runLater(*this, std::move(event));
}

void LoadedForm::holdEvents(bool hold) {
    desktop_.holdEvents(hold);
}

bool LoadedForm::keyboardInUse() const {
    return window_ != nullptr && window_->keyboardInUse();
}

QWebEngineProfile& LoadedForm::browserProfile() {
    return desktop_.browserProfile();
}

}  // namespace desktop
