#pragma once

#include <optional>
#include <string>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "forms/web_browser.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"
#include "session/host.h"

namespace panels {

/// What a notice is handed before it loads.
struct PendingNotice {
    std::string Html;          ///< the finished page
    std::string Title;         ///< of the title bar
    std::string Message = {};  ///< the page's words alone, for a screen reader
    int Buttons = 0;           ///< a message-box code, read by its flags 1 and 4
};

/// A message as a card with real buttons below it. The form grows with its text, within limits, and
/// then scrolls. Whatever becomes of the page, the buttons are there.
class MurvaneNotice : public forms::Form {
public:
    MurvaneNotice(forms::Desktop& desktop, session::Host& host, PendingNotice pending);

    void Form_Load() override;
    void Form_Activate() override;

    /// The code of the answer: `session::answer`.
    int Result = 0;

    furniture::TitleBar TitelBar1;
    forms::WebBrowser wbNotice;
    forms::Label lblNoticeBar;
    forms::CommandButton btnOK;
    forms::CommandButton btnCancel;
    forms::Timer tmrHtml;
    forms::Timer tmrFit;

private:
    void btnOK_Click();
    void btnCancel_Click();
    void tmrHtml_Timer();
    void tmrFit_Timer();
    void wbNotice_DocumentComplete();

    void showButtons();
    void LoadNoticeHtml(const std::string& page);
    void FitNoticeToBody(forms::Twips height);
    void placeButtons();
    /// True once the page could be measured and the form fits it.
    bool MeasureNotice();
    [[nodiscard]] forms::Twips NoticeHeaderHeight() const;
    [[nodiscard]] forms::Twips NoticeMaxBodyHeight() const;
    [[nodiscard]] forms::Twips NoticeFormHeight(forms::Twips body) const;
    void CenterNotice();
    void PlaceNoticeBrowser();

    session::Host& host_;
    PendingNotice pending_;
    bool pageIsRequested_ = false;
    int tries_ = 0;
    std::optional<furniture::clsShadow> shadow_;
};

}  // namespace panels
