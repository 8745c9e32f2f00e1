#pragma once

#include <string>

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

    void setTotal(int items) override { total_ = items; }
    void setCurrent(int item) override { current_ = item; }
    void setValue(int percent, std::string_view text) override;
    [[nodiscard]] int value() const override { return value_; }
    void redraw() override { show(); }
    void show() override;
    void unload() override { line_.clear(); }

private:
    StatusLine& line_;
    int loading_ = 0;
    int total_ = 0;
    int current_ = 0;
    int value_ = 0;
    std::string text_;
};

}  // namespace apps
