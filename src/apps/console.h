#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace apps {

/// The terminal, or what stands in for it: standard output, standard error and standard input.
class Console {
public:
    Console() = default;
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;
    virtual ~Console() = default;

    /// Says whether all of it has gone out, as far as somebody still reads it; if not, the reason
    /// is in `errno`.
    [[nodiscard]] virtual bool writeOut(std::string_view text) = 0;
    virtual void writeError(std::string_view text) = 0;
    /// Whether a line on standard error can be written over.
    [[nodiscard]] virtual bool errorIsTerminal() const = 0;
    /// Whether somebody is there to answer.
    [[nodiscard]] virtual bool canAsk() const = 0;
    /// The next line of standard input, or nothing at its end and on an interrupt.
    [[nodiscard]] virtual std::optional<std::string> readLine() = 0;
};

}  // namespace apps
