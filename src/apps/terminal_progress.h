#pragma once

#include "apps/status_line.h"
#include "session/progress_display.h"

namespace apps {

/// Shows how far a run is on the status line.
class TerminalProgress : public session::ProgressDisplay {
public:
    explicit TerminalProgress(StatusLine& line) : line_(line) {}

    void showLoading() override { line_.show("Reading the workbook"); }
    void setLoadingValue(int percent) override;
    [[nodiscard]] int loadingValue() const override { return loading_; }
    void clearLoading() override { loading_ = 0; }
    void unloadLoading() override { line_.clear(); }

    void showItem(int item, int total) override;
    void unload() override { line_.clear(); }

private:
    StatusLine& line_;
    int loading_ = 0;
};

}  // namespace apps
