#pragma once

#include <deque>
#include <string>
#include <vector>

#include "session/notices.h"

namespace session_doubles {

/// Keeps every notice and answers it: with the next of `answers`, or else as a user does who
/// presses the first button.
class RecordingNotices : public session::NoticePresenter {
public:
    std::vector<session::Notice> shown;
    std::deque<int> answers;

    int show(const session::Notice& notice) override {
        shown.push_back(notice);
        if (answers.empty()) return session::answer::ok;
        const int next = answers.front();
        answers.pop_front();
        return next;
    }

    /// The texts shown, for comparing in one line.
    [[nodiscard]] std::vector<std::string> messages() const {
        std::vector<std::string> all;
        for (const session::Notice& notice : shown) all.push_back(notice.message);
        return all;
    }
};

}  // namespace session_doubles
