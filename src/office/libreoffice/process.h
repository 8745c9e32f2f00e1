#pragma once

#include <sys/types.h>

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace libreoffice {

/// A process that this one started.
class Process {
public:
    /// `endsWithUs`: the system kills it when the thread that started it ends, however that
    /// happens. `variables` such as "TMPDIR=/tmp" take the place of ours of the same names. Its
    /// output goes nowhere. `office::Failure` if it can't be started.
    static Process start(const std::vector<std::string>& command, bool endsWithUs,
                         const std::vector<std::string>& variables = {});

    Process(Process&& other) noexcept;
    Process& operator=(Process&& other) noexcept;
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    /// Kills it if it still runs.
    ~Process();

    [[nodiscard]] pid_t id() const { return id_; }
    /// The exit code if it has ended (128 + signal if a signal ended it).
    [[nodiscard]] std::optional<int> exitCode();
    /// Waits for its end; nothing if it still runs after that time.
    std::optional<int> waitFor(std::chrono::milliseconds patience);
    /// From any thread.
    void kill();

private:
    explicit Process(pid_t id) : id_(id) {}

    pid_t id_ = 0;
    std::optional<int> exitCode_;
    /// Killing may come from another thread than waiting, and the number of a process that has been
    /// waited for may belong to another one already.
    std::unique_ptr<std::mutex> waiting_ = std::make_unique<std::mutex>();
};

}  // namespace libreoffice
