#pragma once

#include <cstdint>
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

/// The reader of help inside the program: a small dark window around one page. Links to other pages
/// of its folder are followed in it, all others in the user's browser. It always opens; where there
/// is no page to show it says so.
class HepPopup : public forms::Form {
public:
    HepPopup(forms::Desktop& desktop, session::Host& host);

    /// What the next showing is to show.
    void PrepareHelpPopup(std::string title, std::string filePath, std::string section = {});
    /// Returns when the reader has been closed.
    void ShowPreparedHelpPopup();

    void Form_Load() override;

    furniture::TitleBar TitelBar1;
    forms::WebBrowser wbHelp;
    forms::Label lblActionBar;
    forms::Label lblHelpBorder;
    forms::Label lblHelpSideL;
    forms::Label lblHelpSideR;
    forms::CommandButton btnClose;
    forms::Timer tmrFit;

private:
    void layOut();
    void CenterHelpOnScreen();
    void loadHelpFile();
    void showPage(const std::string& page, bool isMessage);
    void wbHelp_DocumentComplete();
    /// True: the reader has dealt with the link itself.
    bool wbHelp_BeforeNavigate(std::string_view url);
    void trimPage() const;
    [[nodiscard]] bool fitPage();
    void tmrFit_Timer();

    session::Host& host_;
    std::string title_;
    std::string filePath_;
    std::string section_;
    std::int16_t tries_ = 0;
    bool showsMessage_ = false;
    std::optional<furniture::clsShadow> shadow_;
};

}  // namespace panels
