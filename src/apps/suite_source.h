#pragma once

#include <functional>
#include <memory>

#include "office/suite.h"

namespace apps {

class Interruption;

/// Where a program gets its office suite from. A suite that was started ends with the last handle
/// to it.
struct SuiteSource {
    /// `office::Failure` if none can be started.
    std::function<std::shared_ptr<office::Suite>()> startPrivate;
    /// The suite that the user is running; its `attach` gives nothing if there is none.
    std::function<std::shared_ptr<office::Suite>()> attachToRunning;
};

/// The suites that this build of the program is for. An interruption, where there is one, breaks
/// off what they are doing; it has to outlive the source and its suites.
[[nodiscard]] SuiteSource suitesOfThisMachine(Interruption* interruption = nullptr);

}  // namespace apps
