#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/desktop.h"
#include "panels/notice_form.h"
#include "session/host.h"
#include "session/notices.h"

namespace panels {

/// The page of a notice: a card with a coloured hero, the body and a foot line. `body` is finished
/// markup; title and badge are texts. An empty badge is the kind's own.
[[nodiscard]] std::string BuildNoticeHtml(std::string_view title, std::string_view body,
                                          std::string_view kind, std::string_view badge);

/// The page of any notice: the one it brings, or its message as paragraphs.
[[nodiscard]] std::string noticePage(const session::Notice& notice);

/// Tells what keeps an export from running, and what else there is to review. Returns the answer's
/// code.
int ShowExportBlockedNotice(session::NoticePresenter& presenter,
                            const std::vector<std::string>& fixes,
                            const std::vector<std::string>& reviews);

/// Shows notices in the form `MurvaneNotice`, above everything. There is one at a time: a notice
/// that comes while another is up unloads it, which is then answered as a closed one.
class NoticePanel : public session::NoticePresenter {
public:
    NoticePanel(forms::Desktop& desktop, session::Host& host) : desktop_(desktop), host_(host) {}

    /// The answer's code. Where the form can't be shown the user gets a plain message box, and the
    /// answer is that of a notice that was closed, or 0 if the form didn't get that far.
    int show(const session::Notice& notice) override;

private:
    void ShowNoticeForm(MurvaneNotice& form);

    forms::Desktop& desktop_;
    session::Host& host_;
};

}  // namespace panels
