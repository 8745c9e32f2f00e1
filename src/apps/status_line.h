#pragma once

#include <string_view>

#include "apps/console.h"

namespace apps {

/// One line at the bottom of the terminal that is written over again and again. Anywhere else than
/// on a terminal it shows nothing.
class StatusLine {
public:
    StatusLine(Console& console, bool isWanted)
        : console_(console),
          isWanted_(isWanted && console.errorIsTerminal()) {}
    ~StatusLine() { clear(); }
    StatusLine(const StatusLine&) = delete;
    StatusLine& operator=(const StatusLine&) = delete;

    void show(std::string_view text);
    /// Takes the line away, so that other text can be written.
    void clear();

private:
    Console& console_;
    bool isWanted_;
    bool isShown_ = false;
};

}  // namespace apps
