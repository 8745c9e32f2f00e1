#include "desktop/form_host.h"

#include <utility>

#include "desktop/qt_desktop.h"

namespace desktop {

FormHost::FormHost(forms::Form& form, QtDesktop& desktop)
    : form_(&form),
      desktop_(desktop),
      timers_(form, [this](std::function<void()> tick) {
          // A tick that comes while a page is being asked is lost: the next one follows anyway.
          if (!desktop_.holdsEvents()) deliver(std::move(tick));
      }) {}

FormHost::~FormHost() = default;

bool FormHost::isTopmost() const {
    if (form_ == nullptr) return false;
    const bool isModal = window_ != nullptr && window_->windowModality() != Qt::NonModal;
    return form_->topmost || (isModal && desktop_.hasTopmostBelow(*this));
}

void FormHost::open(forms::ShowMode mode, QWindow* parent) {
    if (window_ == nullptr) window_ = std::make_unique<FormWindow>(*form_, *this);
    window_->open(mode, parent);
}

void FormHost::sync() {
    if (form_ == nullptr) return;
    timers_.sync();
    if (window_ != nullptr) window_->sync();
}

void FormHost::bury() {
    if (!isBusy() && window_ != nullptr) window_->bury();
}

void FormHost::letGo() {
    timers_.stopAll();
    if (window_ != nullptr) window_->letGo();
    form_ = nullptr;
}

void FormHost::deliver(std::function<void()> event) {
    if (form_ == nullptr) return;
    if (desktop_.holdsEvents()) {
        deliverLater(std::move(event));
        return;
    }
    ++running_;
    desktop_.run(event);
    --running_;
}

void FormHost::deliverLater(std::function<void()> event) {
    desktop_.runLater(*this, std::move(event));
}

void FormHost::holdEvents(bool hold) {
    desktop_.holdEvents(hold);
}

bool FormHost::keyboardInUse() const {
    return window_ != nullptr && window_->keyboardInUse();
}

QWebEngineProfile& FormHost::browserProfile() {
    return desktop_.browserProfile();
}

}  // namespace desktop
