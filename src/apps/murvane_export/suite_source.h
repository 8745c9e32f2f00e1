#pragma once

#include <functional>
#include <memory>

#include "office/suite.h"

namespace unattended {

/// Where a run gets its suite from. A suite that was started ends with the last handle to it.
struct SuiteSource {
    /// `office::Failure` if none can be started.
    std::function<std::shared_ptr<office::Suite>()> startPrivate;
    /// The suite that the user is running; its `attach` gives nothing if there is none.
    std::function<std::shared_ptr<office::Suite>()> attachToRunning;
};

}  // namespace unattended
