#pragma once

#include <functional>

#include "apps/console.h"

namespace apps {

/// Opens those of the three standard streams that the caller has closed, to nowhere: the next file
/// would take their number, and what is said would go into it. To be called ahead of all else.
void openStandardStreams();

/// The three standard streams of this process.
class PosixConsole : public Console {
public:
    /// `isInterrupted` is asked while a line is waited for.
    explicit PosixConsole(std::function<bool()> isInterrupted);

    [[nodiscard]] bool writeOut(std::string_view text) override;
    void writeError(std::string_view text) override;
    [[nodiscard]] bool errorIsTerminal() const override;
    [[nodiscard]] bool canAsk() const override;
    [[nodiscard]] std::optional<std::string> readLine() override;

private:
    std::function<bool()> isInterrupted_;
};

}  // namespace apps
