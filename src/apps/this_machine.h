#pragma once

#include "apps/posix_console.h"
#include "apps/posix_host.h"

/// The platform that this build is for, so that nobody else names one.
namespace apps {

using MachineConsole = PosixConsole;
using MachineHost = PosixHost;

}  // namespace apps
