#include "panels/help_form.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <utility>

#include "forms/desktop.h"
#include "furniture/palette.h"
#include "furniture/theme.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "panels/help_page.h"
#include "panels/page_file.h"
#include "session/file_names.h"
#include "session/web_pages.h"

namespace panels {

namespace {

using forms::Twips;
using forms::ZOrder;

constexpr Twips width = 10800;
constexpr Twips height = 9900;
constexpr Twips titleHeight = 480;
constexpr Twips barHeight = 780;
constexpr Twips borderHeight = 15;
constexpr Twips sideWidth = 60;
constexpr Twips margin = 180;
constexpr Twips buttonWidth = 1560;
constexpr Twips buttonHeight = 480;
/// What the screen keeps around the form at the least.
constexpr Twips aroundForm = 600;
constexpr std::int16_t mostTries = 16;

std::string folderOf(const std::string& path) {
    const std::size_t end = path.find_last_of("/\\");
    return end == std::string::npos ? std::string() : path.substr(0, end);
}

/// The name of the file that an address ends in, without what follows it there.
std::string_view fileNameIn(std::string_view url) {
    url = url.substr(0, url.find_first_of("?#"));
    return url.substr(url.rfind('/') + 1);
}

std::string withLinesOf(const std::string& text) {
    return office::replaceAll(office::replaceAll(text, "\r\n", "\n"), "\n", "\r\n");
}

}  // namespace

HepPopup::HepPopup(forms::Desktop& theDesktop, session::Host& host)
    : Form(theDesktop, "HepPopup", width, height),
      TitelBar1(*this, "TitelBar1", {}),
      wbHelp(*this, "wbHelp", {}),
      lblActionBar(*this, "lblActionBar", {}),
      lblHelpBorder(*this, "lblHelpBorder", {}),
      lblHelpSideL(*this, "lblHelpSideL", {}),
      lblHelpSideR(*this, "lblHelpSideR", {}),
      btnClose(*this, "btnClose", {}),
      tmrFit(*this, "tmrFit", std::chrono::milliseconds(80)),
      host_(host) {
    caption = "Murvane Help";
    placesItself = true;
    btnClose.caption = "Close";
    btnClose.isCancel = true;
    btnClose.onClick = [this] { desktop().unload(*this); };
    tmrFit.onTimer = [this] { tmrFit_Timer(); };
    wbHelp.onDocumentComplete = [this] { wbHelp_DocumentComplete(); };
    wbHelp.onBeforeNavigate = [this](std::string_view url) { return wbHelp_BeforeNavigate(url); };
}

void HepPopup::PrepareHelpPopup(std::string title, std::string filePath, std::string section) {
    title_ = std::move(title);
    filePath_ = std::move(filePath);
    section_ = std::move(section);
    tries_ = 0;
}

void HepPopup::ShowPreparedHelpPopup() {
    desktop().show(*this, forms::ShowMode::Modal);
}

void HepPopup::Form_Load() {
    shadow_.emplace().Shadow(*this);
    topmost = true;
    layOut();
    CenterHelpOnScreen();
    loadHelpFile();
    furniture::ApplyTheme(*this);
    // To the theme these are labels like any other.
    lblHelpBorder.backColour = furniture::palette::ThemeBarLine;
    lblHelpSideL.backColour = lblHelpSideR.backColour = furniture::palette::ThemeGround;
    // The keys that scroll go to the page.
    focus = &wbHelp;
}

void HepPopup::layOut() {
    const forms::Screen screen = desktop().screen();
    place.width = std::min(width, screen.width - aroundForm);
    place.height = std::min(height, screen.height - aroundForm);
    const Twips barTop = place.height - barHeight;
    const Twips bodyHeight = barTop - titleHeight;
    TitelBar1.place = {0, 0, place.width, titleHeight};
    lblHelpSideL.place = {0, titleHeight, sideWidth, bodyHeight};
    lblHelpSideR.place = {place.width - sideWidth, titleHeight, sideWidth, bodyHeight};
    wbHelp.place = {sideWidth, titleHeight, place.width - 2 * sideWidth, bodyHeight};
    lblHelpBorder.place = {0, barTop, place.width, borderHeight};
    lblActionBar.place = {0, barTop + borderHeight, place.width, barHeight - borderHeight};
    btnClose.place = {place.width - margin - buttonWidth,
                      barTop + borderHeight + (barHeight - borderHeight - buttonHeight) / 2,
                      buttonWidth, buttonHeight};
    lblActionBar.setZOrder(ZOrder::Back);
    btnClose.setZOrder(ZOrder::Front);
}

void HepPopup::CenterHelpOnScreen() {
    const forms::Screen screen = desktop().screen();
    place.left = screen.middleAcross(place.width);
    place.top = screen.middleDown(place.height);
}

void HepPopup::loadHelpFile() {
    TitelBar1.caption = " " + title_;
    wbHelp.accessibleName = title_;
    if (filePath_.empty()) {
        showPage(helpMessagePage("No help file was selected."), true);
        return;
    }
    office::ContinueOnFailure scope;
    const std::string text =
        scope.read([this] { return host_.readFile(filePath_); }, std::string());
    if (text.empty()) {
        showPage(helpMessagePage(
                     fmt::format("Help file is empty or could not be read:\r\n{}", filePath_)),
                 true);
        return;
    }
    const std::string folder = folderOf(filePath_);
    wbHelp.resourceFolder = folder;
    showPage(injectHelpStyle(withBase(withLinesOf(text), session::fileAddress(folder))), false);
}

void HepPopup::showPage(const std::string& page, bool isMessage) {
    showsMessage_ = isMessage;
    navigateToPage(host_, wbHelp, "MurvaneHelp.html", page, section_);
    tmrFit.enabled = true;
}

void HepPopup::wbHelp_DocumentComplete() {
    const std::string url = office::lowerCase(wbHelp.url());
    const bool isHelp = url.find("help_popup") != std::string::npos ||
                        url.find("murvanehelp.html") != std::string::npos;
    if (!isHelp) return;
    trimPage();
    tmrFit.enabled = true;
}

void HepPopup::trimPage() const {
    forms::BrowserView* document = wbHelp.view;
    if (document == nullptr) return;
    document->setBodyStyle("border", "none");
    document->setBodyStyle("margin", "0");
    // A message has no area of its own that would keep it from the edge.
    document->setBodyStyle("padding", showsMessage_ ? "24px" : "0");
    document->setStyle("overflow", "hidden");
    document->setStyle("height", "100%");
    document->setDivStyle("main-header", "display", "none");
}

bool HepPopup::fitPage() {
    forms::BrowserView* document = wbHelp.view;
    if (document == nullptr || !document->isComplete()) return false;
    const std::string tall = fmt::format("{}px", wbHelp.place.height / forms::twipsPerPixel);
    document->setDivStyle("popup-container", "height", tall);
    document->setDivStyle("popup-container", "overflow", "hidden");
    document->setDivStyle("content-area", "height", tall);
    document->setDivStyle("content-area", "overflowY", "scroll");
    document->setDivStyle("content-area", "overflowX", "hidden");
    document->setDivStyle("content-area", "borderBottom", "2px solid #4a90e2");
    document->setDivStyle("content-area", "boxSizing", "border-box");
    return true;
}

void HepPopup::tmrFit_Timer() {
    if (fitPage()) {
        tmrFit.enabled = false;
        return;
    }
    ++tries_;
    if (tries_ >= mostTries) tmrFit.enabled = false;
}

bool HepPopup::wbHelp_BeforeNavigate(std::string_view url) {
    if (url == wbHelp.url()) return false;
    for (const std::string_view scheme : {"http:", "https:", "mailto:"}) {
        if (url.starts_with(scheme) && !host_.openLink(url))
            host_.messageBox(session::cantOpen(url), "Murvane");
    }
    if (!url.starts_with("file:")) return true;
    const std::string path = fmt::format("{}/{}", wbHelp.resourceFolder, fileNameIn(url));
    office::ContinueOnFailure scope;
    const std::string page = scope.read([&] { return host_.readFile(path); }, std::string());
    if (page.empty()) return true;
    PrepareHelpPopup(titleOfPage(page), path);
    loadHelpFile();
    return true;
}

}  // namespace panels
