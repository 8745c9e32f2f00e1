#pragma once

#include "forms/desktop.h"
#include "furniture/load_form.h"
#include "furniture/progress_form.h"
#include "session/progress_display.h"

namespace panels {

/// The progress of a run in windows: the loading form while the inventory is taken, the progress
/// form during a batch.
class FormProgress : public session::ProgressDisplay {
public:
    explicit FormProgress(forms::Desktop& desktop)
        : desktop_(desktop),
          loading_(desktop),
          progress_(desktop) {}

    void showLoading() override;
    void setLoadingValue(int percent) override;
    [[nodiscard]] int loadingValue() const override;
    void clearLoading() override;
    [[nodiscard]] bool loadingCancelled() const override { return loading_.isClosed(); }
    void unloadLoading() override;

    void showItem(int item, int total) override;
    /// The user has pressed Cancel or Escape, or has closed the form.
    [[nodiscard]] bool cancelled() const override { return progress_.isCancelled(); }
    void unload() override;

private:
    forms::Desktop& desktop_;
    furniture::MurvaneLoad loading_;
    furniture::Progress progress_;
};

}  // namespace panels
