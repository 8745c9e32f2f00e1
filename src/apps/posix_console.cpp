#include "apps/posix_console.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace apps {

namespace {

constexpr int interruptCheckMs = 200;

void writeAll(int stream, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(stream, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        // Nobody listens any more: there is nowhere to complain to.
        if (written <= 0) return;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

}  // namespace

PosixConsole::PosixConsole(std::function<bool()> isInterrupted)
    : isInterrupted_(std::move(isInterrupted)) {}

void PosixConsole::writeOut(std::string_view text) {
    writeAll(STDOUT_FILENO, text);
}

void PosixConsole::writeError(std::string_view text) {
    writeAll(STDERR_FILENO, text);
}

bool PosixConsole::errorIsTerminal() const {
    return ::isatty(STDERR_FILENO) == 1;
}

bool PosixConsole::canAsk() const {
    return ::isatty(STDIN_FILENO) == 1 && errorIsTerminal();
}

std::optional<std::string> PosixConsole::readLine() {
    std::string line;
    while (!isInterrupted_()) {
        pollfd waiting{STDIN_FILENO, POLLIN, 0};
        const int ready = ::poll(&waiting, 1, interruptCheckMs);
        if (ready < 0 && errno != EINTR) return std::nullopt;
        if (ready <= 0) continue;
        char letter = 0;
        if (::read(STDIN_FILENO, &letter, 1) != 1) return std::nullopt;
        if (letter == '\n') return line;
        line += letter;
    }
    return std::nullopt;
}

}  // namespace apps
