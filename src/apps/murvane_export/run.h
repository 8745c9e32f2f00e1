#pragma once

#include <functional>

#include "apps/console.h"
#include "apps/murvane_export/options.h"
#include "apps/suite_source.h"
#include "session/host.h"

namespace unattended {

/// What a run stands on besides its options.
struct Surroundings {
    apps::SuiteSource suites;
    session::Host& host;
    apps::Console& console;
    /// Whether the user has had enough.
    std::function<bool()> isInterrupted;
};

/// Lists, checks or exports, says on the console how it went, and returns the exit code. Whatever
/// happens, what was started for it has ended when it returns, and each output exists as a
/// whole or not at all.
int run(const Options& options, const Surroundings& surroundings);

}  // namespace unattended
