#pragma once

#include "support/failure_plan.h"
#include "support/wrapping_suite.h"

namespace support {

/// Any suite, some calls of which fail as planned.
///
///     FailingSuite failing(suite);
///     failing.plan().fail("Chart.Export", 3);
///     failing.plan().loseSuiteAt(40);
class FailingSuite : public WrappingSuite {
public:
    explicit FailingSuite(office::Suite& inner)
        : WrappingSuite(inner, [this](const RecordedCall& call) {
              plan_.check(call.className, call.member);
          }) {}

    [[nodiscard]] FailurePlan& plan() { return plan_; }

private:
    FailurePlan plan_;
};

}  // namespace support
