#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <optional>
#include <string_view>
#include <thread>

#include "apps/opener.h"

namespace apps {

namespace {

/// As the system takes it.
std::vector<char*> environmentWithout(const std::vector<std::string>& names) {
    std::vector<char*> entries;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view text = *entry;
        const std::string name(text.substr(0, text.find('=')));
        if (std::find(names.begin(), names.end(), name) == names.end()) entries.push_back(*entry);
    }
    entries.push_back(nullptr);
    return entries;
}

std::optional<pid_t> start(std::string target, const std::vector<std::string>& ownVariables) {
    const std::vector<char*> environment = environmentWithout(ownVariables);
    std::string command = "xdg-open";
    char* const arguments[] = {command.data(), target.data(), nullptr};
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    ::posix_spawn_file_actions_init(&files);
    ::posix_spawnattr_init(&attributes);
    for (const int output : {STDOUT_FILENO, STDERR_FILENO})
        ::posix_spawn_file_actions_addopen(&files, output, "/dev/null", O_WRONLY, 0);
    // The signals that this process keeps for itself are to reach the other one.
    sigset_t none;
    ::sigemptyset(&none);
    ::posix_spawnattr_setsigmask(&attributes, &none);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK);
    pid_t process = 0;
    const bool isStarted = ::posix_spawnp(&process, command.c_str(), &files, &attributes, arguments,
                                          environment.data()) == 0;
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&files);
    return isStarted ? std::optional(process) : std::nullopt;
}

/// A process that has ended is gone only once its parent has asked what became of it.
void letGo(pid_t opener) {
    std::thread([opener] { ::waitpid(opener, nullptr, 0); }).detach();
}

}  // namespace

/// Some openers end when they have handed over, others with the program that they have started; one
/// that is still running after a while has found a program.
bool opens(const std::string& target, const std::vector<std::string>& withoutVariables,
           const std::function<void(std::uint32_t ms)>& pause) {
    constexpr std::uint32_t stepMs = 20;
    constexpr int steps = 150;
    const auto opener = start(target, withoutVariables);
    if (!opener) return false;
    int status = 0;
    for (int i = 0; i < steps; ++i) {
        if (::waitpid(*opener, &status, WNOHANG) == *opener)
            return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        pause(stepMs);
    }
    letGo(*opener);
    return true;
}

}  // namespace apps
