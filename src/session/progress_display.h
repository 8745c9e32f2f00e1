#pragma once

#include <exception>

namespace session {

/// The user has closed the loading form, and the inventory ends where it is.
class LoadingCancelled : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override { return "loading was cancelled"; }
};

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
    /// Whether the user has closed the loading form.
    [[nodiscard]] virtual bool loadingCancelled() const { return false; }
    virtual void unloadLoading() = 0;

    /// Says that a batch is at its item `item` of `total`; 0 ahead of the first one.
    virtual void showItem(int item, int total) = 0;
    /// Whether the user wants the batch to end after the item at hand.
    [[nodiscard]] virtual bool cancelled() const { return false; }
    virtual void unload() = 0;
};

}  // namespace session
