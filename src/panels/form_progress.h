#pragma once

#include <functional>
#include <string_view>

#include "forms/desktop.h"
#include "furniture/load_form.h"
#include "furniture/progress_form.h"
#include "session/progress_display.h"

namespace panels {

/// The progress of a run in windows: the loading form while the inventory is taken, the progress
/// form during a batch. Whatever touches one of the two loads it, which sets it to its start.
class FormProgress : public session::ProgressDisplay {
public:
    /// `checkedCount` tells how many items the export at hand takes.
    FormProgress(forms::Desktop& desktop, std::function<int()> checkedCount);

    void showLoading() override;
    void setLoadingValue(int percent) override;
    [[nodiscard]] int loadingValue() const override;
    void clearLoading() override;
    void unloadLoading() override;

    void setTotal(int items) override;
    void setCurrent(int item) override;
    void setValue(int percent, std::string_view text) override;
    [[nodiscard]] int value() const override;
    void redraw() override;
    void show() override;
    void unload() override;

private:
    forms::Desktop& desktop_;
    furniture::MurvaneLoad loading_;
    furniture::Progress progress_;
};

}  // namespace panels
