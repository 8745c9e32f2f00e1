#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "office/libreoffice/process.h"
#include "office/libreoffice/profile.h"

namespace libreoffice {

class Connection;

/// A LibreOffice process of our own, without a window, listening on a pipe of its own.
class PrivateInstance {
public:
    /// Starts it and waits until it answers. `office::Failure` if that takes longer than
    /// `patience`, if it ends instead, or as soon as `isUnwanted` says so.
    static std::unique_ptr<PrivateInstance> start(std::chrono::milliseconds patience,
                                                  const std::function<bool()>& isUnwanted = {});
    PrivateInstance(const PrivateInstance&) = delete;
    PrivateInstance& operator=(const PrivateInstance&) = delete;
    /// Asks it to end, and ends it if it doesn't; then nothing of it is left but its profile.
    ~PrivateInstance();

    [[nodiscard]] const std::shared_ptr<Connection>& connection() const { return connection_; }
    [[nodiscard]] int processId() const { return process_.id(); }
    /// Runs it from here on where the calling thread runs, as the threads of ours that carry the
    /// calls; those that have been started since its own start stay free.
    void shareProcessor();
    /// Ends it at once. May be called from any thread.
    void kill();

private:
    PrivateInstance(Profile profile, std::string pipeName, Process process);

    void waitUntilReady(std::chrono::milliseconds patience,
                        const std::function<bool()>& isUnwanted);
    void endPolitely();

    Profile profile_;
    std::string pipeName_;
    Process process_;
    std::shared_ptr<Connection> connection_;
    /// Those of this process when it was connected, the connection's own among them.
    std::vector<pid_t> callingThreads_;
};

}  // namespace libreoffice
