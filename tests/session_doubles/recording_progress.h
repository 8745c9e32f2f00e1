#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "session/progress_display.h"

namespace session_doubles {

/// Keeps what the loading bar and the progress form were told, in order: "loading 40", "item 1
/// of 2", "unload". The loading bar holds 0 to 100, as that of the form does.
class RecordingProgress : public session::ProgressDisplay {
public:
    std::vector<std::string> calls;
    /// What the user has pressed.
    bool isCancelled = false;
    bool isLoadingCancelled = false;

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
    [[nodiscard]] bool loadingCancelled() const override { return isLoadingCancelled; }
    void unloadLoading() override { calls.emplace_back("unload loading"); }

    void showItem(int item, int total) override {
        calls.push_back("item " + std::to_string(item) + " of " + std::to_string(total));
    }
    [[nodiscard]] bool cancelled() const override { return isCancelled; }
    void unload() override { calls.emplace_back("unload"); }

private:
    int loading_ = 0;
};

}  // namespace session_doubles
