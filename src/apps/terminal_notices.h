#pragma once

#include <string>
#include <utility>

#include "apps/console.h"
#include "apps/status_line.h"
#include "session/notices.h"

namespace apps {

/// What becomes of a question when nobody stands in front of a window.
enum class Answering { Accepts, Refuses, AsksUser };

/// Prints notices on standard error.
class TerminalNotices : public session::NoticePresenter {
public:
    /// `refusalHint` follows the words about a question that nobody was asked; it may be empty.
    TerminalNotices(Console& console, StatusLine& line, Answering answering,
                    std::string refusalHint = {})
        : console_(console),
          line_(line),
          answering_(answering),
          refusalHint_(std::move(refusalHint)) {}

    int show(const session::Notice& notice) override;

    /// Warnings and errors shown so far that left no choice.
    [[nodiscard]] int remarks() const { return remarks_; }

private:
    void print(const session::Notice& notice);
    [[nodiscard]] bool isAccepted();

    Console& console_;
    StatusLine& line_;
    Answering answering_;
    std::string refusalHint_;
    int remarks_ = 0;
};

}  // namespace apps
