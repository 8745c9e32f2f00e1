#pragma once

#include <cerrno>
#include <deque>
#include <optional>
#include <string>

#include "apps/console.h"

/// A terminal in memory.
class ScriptedConsole : public apps::Console {
public:
    std::string out;
    std::string error;
    bool isTerminal = false;
    bool somebodyIsThere = false;
    std::deque<std::string> typed;
    bool takesOut = true;

    [[nodiscard]] bool writeOut(std::string_view text) override {
        out += text;
        if (takesOut) return true;
        errno = ENOSPC;
        return false;
    }
    void writeError(std::string_view text) override { error += text; }
    [[nodiscard]] bool errorIsTerminal() const override { return isTerminal; }
    [[nodiscard]] bool canAsk() const override { return somebodyIsThere; }
    [[nodiscard]] std::optional<std::string> readLine() override {
        if (typed.empty()) return std::nullopt;
        std::string line = typed.front();
        typed.pop_front();
        return line;
    }

    [[nodiscard]] bool errorHas(std::string_view text) const {
        return error.find(text) != std::string::npos;
    }
};
