#pragma once

#include <string>
#include <string_view>

namespace session {

/// What a notice answers, in the codes of a message box.
namespace answer {
inline constexpr int ok = 1;
inline constexpr int cancel = 2;
inline constexpr int yes = 6;
inline constexpr int no = 7;
}  // namespace answer

/// Button sets of a notice: flag 1 adds Cancel, flag 4 makes it Yes and No.
namespace buttons {
inline constexpr int okOnly = 0;
inline constexpr int question = 33;
}  // namespace buttons

/// One message to the user. Line breaks in `message` are CR, LF or CR LF.
struct Notice {
    std::string message;
    std::string title;
    std::string kind;  ///< "info", "warning", "error", "success" or one of their aliases
    int buttons = buttons::okOnly;
    std::string page;  ///< finished markup of the whole page, where the caller has composed one;
                       ///< empty: made from `message`
};

/// Shows notices, one at a time and modal. A window with a browser shows the page, a terminal
/// prints the message.
class NoticePresenter {
public:
    NoticePresenter() = default;
    NoticePresenter(const NoticePresenter&) = delete;
    NoticePresenter& operator=(const NoticePresenter&) = delete;
    virtual ~NoticePresenter() = default;

    /// Returns the answer's code.
    virtual int show(const Notice& notice) = 0;
};

/// The calls that all parts of the program use: message first, title second.
int ShowNotice(NoticePresenter& presenter, std::string_view message, std::string_view title,
               std::string_view kind, int buttons);
int ShowInfoNotice(NoticePresenter& presenter, std::string_view message,
                   std::string_view title = "Murvane");
int ShowWarningNotice(NoticePresenter& presenter, std::string_view message,
                      std::string_view title = "Murvane");
int ShowErrorNotice(NoticePresenter& presenter, std::string_view message,
                    std::string_view title = "Murvane");
/// OK and Cancel.
int ShowConfirmNotice(NoticePresenter& presenter, std::string_view message, std::string_view title);

}  // namespace session
