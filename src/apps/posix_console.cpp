#include "apps/posix_console.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace apps {

namespace {

constexpr int interruptCheckMs = 200;

/// Leaves its reason in `errno` where it fails.
bool writeAll(int stream, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(stream, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        // Whoever has read enough of it goes away, and has what was wanted.
        if (written <= 0) return errno == EPIPE;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace

void openStandardStreams() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        // It takes the lowest number that is free, which is this one.
        if (::fcntl(stream, F_GETFD) < 0) static_cast<void>(::open("/dev/null", O_RDWR));
    }
}

PosixConsole::PosixConsole(std::function<bool()> isInterrupted)
    : isInterrupted_(std::move(isInterrupted)) {}

bool PosixConsole::writeOut(std::string_view text) {
    return writeAll(STDOUT_FILENO, text);
}

void PosixConsole::writeError(std::string_view text) {
    // There is nowhere to complain to.
    static_cast<void>(writeAll(STDERR_FILENO, text));
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
