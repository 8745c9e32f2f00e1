#pragma once

#include <string>

#include "apps/console.h"

namespace apps {

/// Carries out a command with windows; returns its exit status. Failures go to the caller, after
/// the windows have been closed.
int runInWindows(int count, char** words, const std::string& commandLine, Console& console);

}  // namespace apps
