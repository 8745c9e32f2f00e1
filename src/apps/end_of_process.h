#pragma once

#include <cstdio>
#include <cstdlib>

namespace apps {

/// Ends the process with everything of its own closed already. The libraries' own end is left out:
/// threads of the connection to the suite may still be letting go of its objects, and would meet
/// what has been taken down.
[[noreturn]] inline void endProcess(int status) {
    std::fflush(nullptr);
    std::quick_exit(status);
}

}  // namespace apps
