#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "office/suite.h"

namespace contract {

/// What the contract needs of an adapter beside its object models.
class Environment {
public:
    Environment() = default;
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    virtual ~Environment() = default;

    /// A suite with a running Excel, PowerPoint and Word, without open documents.
    [[nodiscard]] virtual office::Suite& suite() = 0;

    /// The full path of one of the documents that fixture.md describes, ready to be opened.
    [[nodiscard]] virtual std::string document(std::string_view fileName) = 0;

    /// A full path for a file that a test writes; the environment removes it at its end.
    [[nodiscard]] virtual std::string temporaryFile(std::string_view fileName) = 0;
};

/// Each program that runs the contract has its own.
std::unique_ptr<Environment> makeEnvironment();

}  // namespace contract
