#include "office/libreoffice/process.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <string_view>
#include <thread>
#include <utility>

#include "office/failure.h"

namespace libreoffice {

namespace {

/// Between fork and exec: only calls that are safe there.
[[noreturn]] void becomeCommand(char* const* arguments, char* const* environment, bool endsWithUs,
                                pid_t parent) {
    setpgid(0, 0);  // Ctrl-C in the terminal is for us, who then end it in good order
    if (endsWithUs) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) _exit(127);
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    const int nowhere = open("/dev/null", O_RDWR);
    dup2(nowhere, STDIN_FILENO);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    execve(arguments[0], arguments, environment);
    _exit(127);
}

std::vector<std::string> environmentWith(const std::vector<std::string>& variables) {
    std::vector<std::string> all = variables;
    for (char** ours = environ; *ours != nullptr; ++ours) {
        const std::string_view entry = *ours;
        const std::string_view assignment = entry.substr(0, entry.find('=') + 1);
        const bool isReplaced =
            std::any_of(variables.begin(), variables.end(),
                        [&](const std::string& other) { return other.starts_with(assignment); });
        if (!isReplaced) all.emplace_back(entry);
    }
    return all;
}

/// As the system takes a list of words.
std::vector<char*> pointersTo(const std::vector<std::string>& words) {
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (const std::string& word : words) pointers.push_back(const_cast<char*>(word.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

Process Process::start(const std::vector<std::string>& command, bool endsWithUs,
                       const std::vector<std::string>& variables) {
    const std::vector<char*> arguments = pointersTo(command);
    const std::vector<std::string> assignments = environmentWith(variables);
    const std::vector<char*> environment = pointersTo(assignments);
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child < 0) {
        office::refuse("Process.start", "The system could not start another process");
    }
    if (child == 0) becomeCommand(arguments.data(), environment.data(), endsWithUs, parent);
    return Process(child);
}

Process::Process(Process&& other) noexcept
    : id_(std::exchange(other.id_, 0)),
      exitCode_(std::exchange(other.exitCode_, std::nullopt)) {
    std::swap(waiting_, other.waiting_);
}

Process& Process::operator=(Process&& other) noexcept {
    std::swap(id_, other.id_);
    std::swap(exitCode_, other.exitCode_);
    std::swap(waiting_, other.waiting_);
    return *this;
}

Process::~Process() {
    if (id_ != 0 && !exitCode()) {
        kill();
        waitFor(std::chrono::seconds(2));
    }
}

std::optional<int> Process::exitCode() {
    const std::lock_guard<std::mutex> lock(*waiting_);
    if (exitCode_ || id_ == 0) return exitCode_;
    int status = 0;
    if (waitpid(id_, &status, WNOHANG) == id_) {
        exitCode_ = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    }
    return exitCode_;
}

std::optional<int> Process::waitFor(std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!exitCode() && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return exitCode_;
}

void Process::kill() {
    const std::lock_guard<std::mutex> lock(*waiting_);
    // The group, so that helpers of the suite go with it.
    if (id_ != 0 && !exitCode_) ::kill(-id_, SIGKILL);
}

}  // namespace libreoffice
