#include "desktop/form_timers.h"

#include <algorithm>

namespace desktop {

namespace {

bool wantsToRun(const forms::Timer& timer) {
    return timer.enabled && timer.interval.count() > 0;
}

}  // namespace

bool FormTimers::hasTimer(const forms::Timer* timer) const {
    const std::vector<forms::Timer*>& all = form_.timers();
    return std::find(all.begin(), all.end(), timer) != all.end();
}

void FormTimers::stopAll() {
    for (Running& each : running_) {
        each.clock->stop();
        ended_.push_back(std::move(each.clock));
    }
    running_.clear();
}

void FormTimers::sync() {
    for (Running& each : running_) {
        if (hasTimer(each.timer)) continue;
        each.clock->stop();
        ended_.push_back(std::move(each.clock));
    }
    std::erase_if(running_, [](const Running& each) { return each.clock == nullptr; });
    for (forms::Timer* timer : form_.timers()) {
        auto known = std::find_if(running_.begin(), running_.end(),
                                  [timer](const Running& each) { return each.timer == timer; });
        if (known == running_.end()) {
            if (!wantsToRun(*timer)) continue;
            running_.push_back(start(*timer));
            continue;
        }
        QTimer& clock = *known->clock;
        if (clock.intervalAsDuration() != timer->interval) clock.setInterval(timer->interval);
        if (clock.isActive() == wantsToRun(*timer)) continue;
        wantsToRun(*timer) ? clock.start() : clock.stop();
    }
}

FormTimers::Running FormTimers::start(forms::Timer& timer) {
    auto clock = std::make_unique<QTimer>();
    clock->setTimerType(timer.interval < std::chrono::milliseconds{20} ? Qt::PreciseTimer
                                                                       : Qt::CoarseTimer);
    clock->setInterval(timer.interval);
    QObject::connect(clock.get(), &QTimer::timeout, clock.get(),
                     [this, which = &timer] { ticked(which); });
    clock->start();
    return {&timer, std::move(clock)};
}

void FormTimers::ticked(forms::Timer* timer) {
    if (std::find(busy_.begin(), busy_.end(), timer) != busy_.end()) return;
    tick_([this, timer] {
        if (!hasTimer(timer) || !timer->enabled || !timer->onTimer) return;
        busy_.push_back(timer);
        const auto free = [this, timer] { std::erase(busy_, timer); };
        struct AtEnd {
            const decltype(free)& act;
            ~AtEnd() { act(); }
        } const atEnd{free};
        timer->onTimer();
    });
}

}  // namespace desktop
