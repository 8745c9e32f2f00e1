#include "office/libreoffice/shared_processor.h"

#include <sched.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>

namespace libreoffice {

namespace {

std::vector<pid_t> threadsOf(const std::string& process) {
    std::vector<pid_t> threads;
    std::error_code isGone;
    std::filesystem::directory_iterator each("/proc/" + process + "/task", isGone);
    for (; !isGone && each != std::filesystem::directory_iterator(); each.increment(isGone))
        threads.push_back(std::stoi(each->path().filename().string()));
    return threads;
}

}  // namespace

std::vector<pid_t> threadsOfThisProcess() {
    return threadsOf("self");
}

void shareThisProcessor(const std::vector<pid_t>& ownThreads, pid_t other) {
    const int processor = sched_getcpu();
    if (processor < 0 || processor >= CPU_SETSIZE) return;
    cpu_set_t here;
    CPU_ZERO(&here);
    CPU_SET(static_cast<std::size_t>(processor), &here);
    // A thread that has ended meanwhile is no loss.
    for (const pid_t thread : ownThreads) sched_setaffinity(thread, sizeof here, &here);
    for (const pid_t thread : threadsOf(std::to_string(other)))
        sched_setaffinity(thread, sizeof here, &here);
}

}  // namespace libreoffice
