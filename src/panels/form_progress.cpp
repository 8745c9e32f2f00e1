#include "panels/form_progress.h"

#include <fmt/format.h>

namespace panels {

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

void FormProgress::showItem(int item, int total) {
    // A form that the user has closed stays away for the rest of the batch.
    if (progress_.isCancelled() && !desktop_.isLoaded(progress_)) return;
    desktop_.load(progress_);
    progress_.showItem(item, total);
    if (!desktop_.isShown(progress_)) desktop_.show(progress_, forms::ShowMode::Modeless);
}

void FormProgress::unload() {
    desktop_.unload(progress_);
    progress_.begin();
}

}  // namespace panels
