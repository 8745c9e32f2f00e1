#pragma once

#include <string>
#include <vector>

#include "office/value.h"

namespace office {

/// The arguments of a call in the order in which the member names them, the named ones sorted in.
///
/// Positions count from 0. An argument that was left out reads as missing.
class CallArguments {
public:
    /// `Failure` 450 for more arguments than the member has names, 448 for a name that it doesn't
    /// have.
    CallArguments(std::string source, const std::vector<std::string>& names,
                  const Arguments& arguments);

    /// "Worksheet.Cells": for failures of the member's own.
    [[nodiscard]] const std::string& source() const { return source_; }

    [[nodiscard]] bool has(std::size_t position) const;
    /// `Failure` 450 if the argument was left out.
    [[nodiscard]] const Value& at(std::size_t position) const;
    [[nodiscard]] Value at(std::size_t position, const Value& otherwise) const;

private:
    std::string source_;
    std::vector<Value> values_;
};

}  // namespace office
