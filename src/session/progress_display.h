#pragma once

#include <string_view>

namespace session {

/// Where a run shows how far it is: the loading bar while the inventory is taken, the progress form
/// during a batch. A window moves its bars, a terminal rewrites a line. A bar holds a whole number
/// of 0 to 100; what lies outside is clamped.
class ProgressDisplay {
public:
    ProgressDisplay() = default;
    ProgressDisplay(const ProgressDisplay&) = delete;
    ProgressDisplay& operator=(const ProgressDisplay&) = delete;
    virtual ~ProgressDisplay() = default;

    virtual void showLoading() = 0;
    /// The loading bar's value, in percent; it keeps it until the next one.
    virtual void setLoadingValue(int percent) = 0;
    [[nodiscard]] virtual int loadingValue() const = 0;
    virtual void clearLoading() = 0;
    virtual void unloadLoading() = 0;

    /// The labels of the progress form: the total, and the item at hand.
    virtual void setTotal(int items) = 0;
    virtual void setCurrent(int item) = 0;
    /// The bar `prbHorizontal` of the progress form, in percent, and its text.
    virtual void setValue(int percent, std::string_view text) = 0;
    [[nodiscard]] virtual int value() const = 0;
    virtual void redraw() = 0;
    virtual void show() = 0;
    virtual void unload() = 0;
};

}  // namespace session
