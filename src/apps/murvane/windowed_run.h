#pragma once

#include <functional>
#include <string>

#include "apps/console.h"
#include "apps/suite_source.h"
#include "forms/desktop.h"

namespace apps {

/// Whether there is a screen that answers.
[[nodiscard]] bool canShowWindows();

/// Carries out a command with windows; returns its exit status. Failures are shown in a box and go
/// to the caller, after the windows have been closed.
int runInWindows(int count, char** words, const std::string& commandLine, Console& console,
                 const SuiteSource& suites);

/// Where windows come from once there is something to show: starting them takes longer than some
/// commands.
using DesktopSource = std::function<forms::Desktop&()>;

/// The same on a desktop that is there already.
int runCommandOn(const DesktopSource& desktop, const std::string& commandLine, Console& console,
                 const SuiteSource& suites);

}  // namespace apps
