#include "session/notices.h"

namespace session {

int ShowNotice(NoticePresenter& presenter, std::string_view message, std::string_view title,
               std::string_view kind, int buttons) {
    return presenter.show(
        {std::string(message), std::string(title), std::string(kind), buttons, {}});
}

int ShowInfoNotice(NoticePresenter& presenter, std::string_view message, std::string_view title) {
    return ShowNotice(presenter, message, title, "info", buttons::okOnly);
}

int ShowWarningNotice(NoticePresenter& presenter, std::string_view message,
                      std::string_view title) {
    return ShowNotice(presenter, message, title, "warning", buttons::okOnly);
}

int ShowErrorNotice(NoticePresenter& presenter, std::string_view message, std::string_view title) {
    return ShowNotice(presenter, message, title, "error", buttons::okOnly);
}

int ShowConfirmNotice(NoticePresenter& presenter, std::string_view message,
                      std::string_view title) {
    return ShowNotice(presenter, message, title, "info", buttons::question);
}

}  // namespace session
