#pragma once

#include "forms/desktop.h"
#include "panels/notice_form.h"
#include "session/host.h"
#include "session/notices.h"

namespace panels {

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
