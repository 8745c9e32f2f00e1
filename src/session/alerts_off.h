#pragma once

#include <utility>

#include "office/at_end.h"
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
    ~AlertsOff() {
        office::asFarAsPossible([this] { excel_.put("DisplayAlerts", before_); });
    }

private:
    office::Object excel_;
    bool before_ = true;
};

}  // namespace session
