#include "panels/notice_form.h"

#include <algorithm>
#include <string>
#include <utility>

#include "forms/desktop.h"
#include "furniture/button_styles.h"
#include "furniture/palette.h"
#include "furniture/theme.h"
#include "panels/markup.h"
#include "panels/page_file.h"
#include "session/notices.h"

namespace panels {

namespace {

using forms::Twips;
using forms::ZOrder;
using std::chrono::milliseconds;

/// Flags of the button sets.
constexpr int withCancel = 1;
constexpr int yesAndNo = 4;

constexpr Twips defaultWidth = 8400;
constexpr Twips minimumBody = 1800;
constexpr Twips tallestBody = 8400;
constexpr Twips barHeight = 1140;
constexpr Twips margin = 180;
constexpr Twips buttonWidth = 1920;
constexpr Twips buttonHeight = 480;
constexpr double buttonFontPt = 10.5;
/// Less than this is a page without its layout.
constexpr int leastMeasurePx = 40;
constexpr int mostTries = 13;

bool has(int buttons, int flag) {
    return (buttons & flag) != 0;
}

}  // namespace

MurvaneNotice::MurvaneNotice(forms::Desktop& theDesktop, session::Host& host, PendingNotice pending)
    : Form(theDesktop, "MurvaneNotice", defaultWidth, 3600),
      TitelBar1(*this, "TitelBar1", {0, 0, defaultWidth, 420}),
      wbNotice(*this, "wbNotice", {}),
      lblNoticeBar(*this, "lblNoticeBar", {}),
      btnOK(*this, "btnOK", {}),
      btnCancel(*this, "btnCancel", {}),
      tmrHtml(*this, "tmrHtml", milliseconds(50)),
      tmrFit(*this, "tmrFit", milliseconds(80)),
      host_(host),
      pending_(std::move(pending)) {
    placesItself = true;
    // Not the button that says no: a notice that was closed has an answer of its own.
    escapeCloses = true;
    btnOK.onClick = [this] { btnOK_Click(); };
    btnCancel.onClick = [this] { btnCancel_Click(); };
    tmrHtml.onTimer = [this] { tmrHtml_Timer(); };
    tmrFit.onTimer = [this] { tmrFit_Timer(); };
    wbNotice.onDocumentComplete = [this] { wbNotice_DocumentComplete(); };
}

void MurvaneNotice::Form_Load() {
    shadow_.emplace().Shadow(*this);
    pageIsRequested_ = false;
    Result = has(pending_.Buttons, withCancel) ? session::answer::cancel : session::answer::ok;
    caption = pending_.Title.empty() ? "Murvane" : pending_.Title;
    TitelBar1.caption = " " + caption;
    wbNotice.accessibleName = caption;
    // A screen reader reads what has the keyboard, which the page has not.
    btnOK.accessibleDescription = onOneLine(pending_.Message);
    showButtons();
    PlaceNoticeBrowser();
    FitNoticeToBody(minimumBody);
    furniture::ApplyTheme(*this);
    // The theme has styled the buttons anew.
    FitNoticeToBody(minimumBody);
    CenterNotice();
    if (!pending_.Html.empty()) tmrHtml.enabled = true;
}

void MurvaneNotice::showButtons() {
    btnCancel.visible = has(pending_.Buttons, withCancel);
    btnOK.caption = "OK";
    btnCancel.caption = "Cancel";
    if (!has(pending_.Buttons, yesAndNo)) return;
    btnOK.caption = "Yes";
    btnCancel.caption = "No";
    btnCancel.visible = true;
}

void MurvaneNotice::Form_Activate() {
    topmost = true;
    focus = &btnOK;
    CenterNotice();
}

void MurvaneNotice::tmrHtml_Timer() {
    tmrHtml.enabled = false;
    if (pageIsRequested_) return;
    pageIsRequested_ = true;
    tries_ = 0;
    LoadNoticeHtml(pending_.Html);
}

void MurvaneNotice::LoadNoticeHtml(const std::string& page) {
    if (page.empty()) return;
    if (!navigateToPage(host_, wbNotice, "MurvaneNotice.html", page) && !pending_.Message.empty())
        desktop().messageBox(pending_.Message, pending_.Title);
    tmrFit.enabled = true;
}

void MurvaneNotice::wbNotice_DocumentComplete() {
    furniture::ApplyBrowserBackground(wbNotice, furniture::palette::ThemeGroundText);
    tmrFit.enabled = true;
}

void MurvaneNotice::tmrFit_Timer() {
    if (MeasureNotice()) {
        tmrFit.enabled = false;
        return;
    }
    ++tries_;
    if (tries_ < mostTries) return;
    tmrFit.enabled = false;
    FitNoticeToBody(minimumBody);
}

bool MurvaneNotice::MeasureNotice() {
    forms::BrowserView* document = wbNotice.view;
    if (document == nullptr || !document->isComplete()) return false;
    document->setStyle("overflow", "hidden");
    const int heightPx = document->contentHeight("noticeRoot");
    if (heightPx < leastMeasurePx) return false;

    Twips body = (heightPx + 24) * forms::twipsPerPixel + 360;
    body = std::max(body, minimumBody);
    const Twips limit = NoticeMaxBodyHeight();
    if (body > limit) {
        body = limit;
        document->setStyle("overflow", "auto");
    }
    FitNoticeToBody(body);
    // A notice that has grown downwards from the middle could end below the screen.
    CenterNotice();
    return true;
}

Twips MurvaneNotice::NoticeHeaderHeight() const {
    return TitelBar1.place.height < 1 ? 645 : TitelBar1.place.height + 240;
}

Twips MurvaneNotice::NoticeMaxBodyHeight() const {
    const Twips room = desktop().screen().height - NoticeHeaderHeight() - barHeight - 480;
    return std::clamp(room, minimumBody, tallestBody);
}

Twips MurvaneNotice::NoticeFormHeight(Twips body) const {
    return NoticeHeaderHeight() + body + barHeight;
}

void MurvaneNotice::FitNoticeToBody(Twips height) {
    Twips body = std::min(height, NoticeMaxBodyHeight());
    const Twips needed = NoticeFormHeight(body);
    place.height = std::min(needed, desktop().screen().height - 600);
    body -= needed - place.height;

    wbNotice.place = {margin, NoticeHeaderHeight(), place.width - 2 * margin, body};
    lblNoticeBar.place = {0, place.height - barHeight, place.width, barHeight};
    placeButtons();
}

void MurvaneNotice::placeButtons() {
    const Twips top = lblNoticeBar.place.top + 330;
    const Twips left = place.width - margin - buttonWidth;
    btnOK.place = {left, top, buttonWidth, buttonHeight};
    btnCancel.place = {left - 150 - buttonWidth, top, buttonWidth, buttonHeight};
    furniture::StyleAccentButton(btnOK, std::string(btnOK.caption), buttonFontPt);
    furniture::StyleNeutralButton(btnCancel, std::string(btnCancel.caption), buttonFontPt);
    TitelBar1.setZOrder(ZOrder::Front);
    btnOK.setZOrder(ZOrder::Front);
    btnCancel.setZOrder(ZOrder::Front);
    lblNoticeBar.setZOrder(ZOrder::Back);
}

void MurvaneNotice::CenterNotice() {
    const forms::Screen screen = desktop().screen();
    place.left = screen.middleAcross(place.width);
    place.top = screen.middleDown(place.height);
}

void MurvaneNotice::PlaceNoticeBrowser() {
    wbNotice.place = {margin, NoticeHeaderHeight(), place.width - 2 * margin, minimumBody};
}

void MurvaneNotice::btnOK_Click() {
    Result = has(pending_.Buttons, yesAndNo) ? session::answer::yes : session::answer::ok;
    desktop().unload(*this);
}

void MurvaneNotice::btnCancel_Click() {
    Result = has(pending_.Buttons, yesAndNo) ? session::answer::no : session::answer::cancel;
    desktop().unload(*this);
}

}  // namespace panels
