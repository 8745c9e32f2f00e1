#pragma once

#include <atomic>
#include <functional>
#include <map>
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

    [[nodiscard]] bool hasHappened() const { return times_ > 0; }

    /// What to do at the moment of the interruption, on the waiting thread; at once if it has
    /// happened already. It is to make whatever the program is waiting for return.
    void onceHappened(std::function<void()> action);
    /// The same for the second interruption, where the first one lets the program come to an end by
    /// itself.
    void onceInsisted(std::function<void()> action);

private:
    void wait();
    void await(int times, std::function<void()> action);

    std::atomic<int> times_ = 0;
    std::atomic<bool> isOver_ = false;
    std::mutex actionLock_;
    /// By the number of the interruption.
    std::map<int, std::function<void()>> actions_;
    std::thread waiting_;
};

}  // namespace apps
