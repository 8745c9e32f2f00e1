#pragma once

#include <utility>

#include "office/failure_patterns.h"
#include "office/value.h"

namespace session {

/// Excel asks nothing while this lives. Left so, it would not ask whether to save either.
class AlertsOff {
public:
    explicit AlertsOff(office::Object excel) : excel_(std::move(excel)) {
        office::ContinueOnFailure scope;
        before_ = scope.read([this] { return excel_.get("DisplayAlerts").toBool(); }, true);
        scope.attempt([this] { excel_.put("DisplayAlerts", false); });
    }
    AlertsOff(const AlertsOff&) = delete;
    AlertsOff& operator=(const AlertsOff&) = delete;
    /// An application that has gone has nothing left to put back.
    ~AlertsOff() {
        try {
            excel_.put("DisplayAlerts", before_);
        } catch (const office::Failure&) {
            return;
        }
    }

private:
    office::Object excel_;
    bool before_ = true;
};

}  // namespace session
