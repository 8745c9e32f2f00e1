#pragma once

#include <optional>

#include "support/call_log.h"
#include "support/failure_plan.h"

namespace office_double {

/// A picture on the applications' clipboard; its size in points.
struct CopiedPicture {
    double width = 0;
    double height = 0;
};

/// What all objects of one suite share.
struct SuiteState {
    support::CallLog log;
    support::FailurePlan failures;
    std::optional<CopiedPicture> clipboard;
};

}  // namespace office_double
