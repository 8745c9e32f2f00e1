#include "panels/form_progress.h"

#include <fmt/format.h>

#include <string>
#include <utility>

namespace panels {

FormProgress::FormProgress(forms::Desktop& desktop, std::function<int()> checkedCount)
    : desktop_(desktop),
      loading_(desktop),
      progress_(desktop, std::move(checkedCount)) {}

void FormProgress::showLoading() {
    desktop_.show(loading_, forms::ShowMode::Modeless);
}

void FormProgress::setLoadingValue(int percent) {
    desktop_.load(loading_);
    furniture::ProgressBar& bar = loading_.prbHorizontalOnLoad;
    bar.setValue(percent);
    bar.caption = fmt::format("{}%", bar.value());
}

int FormProgress::loadingValue() const {
    return loading_.prbHorizontalOnLoad.value();
}

void FormProgress::clearLoading() {
    loading_.prbHorizontalOnLoad.Clear();
}

void FormProgress::unloadLoading() {
    desktop_.unload(loading_);
    // The next run begins with a form of its own.
    loading_.prbHorizontalOnLoad.Clear();
}

void FormProgress::setTotal(int items) {
    desktop_.load(progress_);
    progress_.Of.caption = std::to_string(items);
    progress_.RefreshProgressDisplay();
}

void FormProgress::setCurrent(int item) {
    desktop_.load(progress_);
    progress_.ONe.caption = std::to_string(item);
    progress_.RefreshProgressDisplay();
}

void FormProgress::setValue(int percent, std::string_view text) {
    desktop_.load(progress_);
    progress_.prbHorizontal.setValue(percent);
    progress_.prbHorizontal.caption = text;
}

int FormProgress::value() const {
    return desktop_.isLoaded(progress_) ? progress_.prbHorizontal.value() : 0;
}

void FormProgress::redraw() {
    desktop_.load(progress_);
    progress_.RefreshProgressDisplay();
}

void FormProgress::show() {
    if (!desktop_.isShown(progress_)) desktop_.show(progress_, forms::ShowMode::Modeless);
}

void FormProgress::unload() {
    desktop_.unload(progress_);
}

}  // namespace panels
