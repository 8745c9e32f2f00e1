#pragma once

#include <stdexcept>

namespace unattended {

/// What the program ends with.
namespace exit_code {
inline constexpr int done = 0;
inline constexpr int failed = 1;
inline constexpr int wrongUsage = 2;
inline constexpr int blocked = 3;
}  // namespace exit_code

/// The caller asked for something that can't be: a file that isn't there, an item that the workbook
/// doesn't have. The text says what and what to do; it goes to standard error as it is.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The work could not be done, for a reason outside the command line.
class RunError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace unattended
