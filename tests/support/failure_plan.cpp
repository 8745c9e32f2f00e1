#include "support/failure_plan.h"

#include <fmt/format.h>

#include <utility>

#include "support/call_log.h"

namespace support {

void FailurePlan::fail(std::string member, int nth, office::FailureNumber number) {
    planned_.push_back({std::move(member), nth, false, number});
}

void FailurePlan::failAfter(std::string culprit, std::string member, int nth) {
    planned_.push_back({std::move(member), nth, false, office::FailureNumber::ApplicationDefined,
                        std::move(culprit)});
}

void FailurePlan::failAlways(std::string member, office::FailureNumber number) {
    planned_.push_back({std::move(member), 0, true, number});
}

void FailurePlan::check(std::string_view className, std::string_view member) {
    if (callsUntilLost_ && --*callsUntilLost_ <= 0) lost_ = true;
    if (lost_) throw office::SuiteLost("The application has gone, as planned.");
    for (Planned& plan : planned_) {
        if (!meansMember(plan.member, className, member)) continue;
        if (plan.always || --plan.callsLeft == 0) {
            const std::string name = fmt::format("{}.{}", className, member);
            throw office::Failure(plan.number, plan.culprit.empty() ? name : plan.culprit,
                                  name + " fails, as planned.");
        }
    }
}

}  // namespace support
