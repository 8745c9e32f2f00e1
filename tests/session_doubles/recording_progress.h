#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "session/progress_display.h"

namespace session_doubles {

/// Keeps what the loading bar and the progress form were told, in order: "loading 40", "value 100
/// 100 %", "unload". The bars hold 0 to 100, as those of the forms do.
class RecordingProgress : public session::ProgressDisplay {
public:
    std::vector<std::string> calls;

    void showLoading() override { calls.emplace_back("show loading"); }
    void setLoadingValue(int percent) override {
        loading_ = std::clamp(percent, 0, 100);
        calls.push_back("loading " + std::to_string(percent));
    }
    [[nodiscard]] int loadingValue() const override { return loading_; }
    void clearLoading() override {
        loading_ = 0;
        calls.emplace_back("clear loading");
    }
    void unloadLoading() override { calls.emplace_back("unload loading"); }

    void setTotal(int items) override { calls.push_back("total " + std::to_string(items)); }
    void setCurrent(int item) override { calls.push_back("current " + std::to_string(item)); }
    void setValue(int percent, std::string_view text) override {
        value_ = std::clamp(percent, 0, 100);
        calls.push_back("value " + std::to_string(percent) + " " + std::string(text));
    }
    [[nodiscard]] int value() const override { return value_; }
    void redraw() override { calls.emplace_back("redraw"); }
    void show() override { calls.emplace_back("show"); }
    void unload() override { calls.emplace_back("unload"); }

private:
    int loading_ = 0;
    int value_ = 0;
};

}  // namespace session_doubles
