#include <pthread.h>
#include <signal.h>

#include <utility>

#include "apps/interruption.h"

namespace apps {

namespace {

sigset_t endingSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, signal);
    return signals;
}

/// Whoever started the program may have said otherwise: nohup for the end of the session, a script
/// for Ctrl-C in what it leaves running. A signal that is waited for comes even so.
bool isIgnored(int signal) {
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

Interruption::Interruption() {
    const sigset_t signals = endingSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    waiting_ = std::thread([this] { wait(); });
}

Interruption::~Interruption() {
    isOver_ = true;
    // Any of them wakes the thread.
    // NOLINTNEXTLINE(bugprone-bad-signal-to-kill-thread): it is blocked, and waited for
    pthread_kill(waiting_.native_handle(), SIGTERM);
    waiting_.join();
}

void Interruption::onceHappened(std::function<void()> action) {
    await(1, std::move(action));
}

void Interruption::onceInsisted(std::function<void()> action) {
    await(2, std::move(action));
}

void Interruption::await(int times, std::function<void()> action) {
    const std::lock_guard<std::mutex> lock(actionLock_);
    actions_[times] = std::move(action);
    if (times_ >= times && actions_[times]) actions_[times]();
}

void Interruption::wait() {
    const sigset_t signals = endingSignals();
    int signal = 0;
    while (sigwait(&signals, &signal) == 0 && !isOver_) {
        if (isIgnored(signal)) continue;
        const std::lock_guard<std::mutex> lock(actionLock_);
        const auto& action = actions_[++times_];
        if (action) action();
    }
}

}  // namespace apps
