#pragma once

#include <sys/types.h>

#include <vector>

namespace libreoffice {

/// The threads that this process has at the moment.
[[nodiscard]] std::vector<pid_t> threadsOfThisProcess();

/// Lets some threads of this process and all of another one of the same user's run on the processor
/// that this thread is on, and on no other; what the other process starts from here on does too. As
/// far as the system permits it.
void shareThisProcessor(const std::vector<pid_t>& ownThreads, pid_t other);

}  // namespace libreoffice
