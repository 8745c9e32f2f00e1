#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

namespace apps {

/// Waits for Ctrl-C, and for the other signals that ask a program to end, on a thread of its own.
/// The signals are kept from all threads that begin after this object, so make it first.
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    [[nodiscard]] bool hasHappened() const { return happened_; }

    /// What to do at the moment of the interruption, on the waiting thread; at once if it has
    /// happened already. It is to make whatever the program is waiting for return.
    void onceHappened(std::function<void()> action);

private:
    void wait();

    std::atomic<bool> happened_ = false;
    std::atomic<bool> isOver_ = false;
    std::mutex actionLock_;
    std::function<void()> action_;
    std::thread waiting_;
};

}  // namespace apps
