#include "panels/options_form.h"

#include <utility>

#include "panels/markup.h"
#include "panels/panel_page.h"

namespace panels {

namespace {

using forms::Twips;

constexpr Twips width = 9240;
constexpr Twips height = 6780;

}  // namespace

OptionsForm::OptionsForm(forms::Desktop& theDesktop, session::OfficeSession& session,
                         std::string name, std::string destinationWord, std::string drawing)
    : Form(theDesktop, std::move(name), width, height),
      TitelBar1(*this, "TitelBar1", {0, 0, width, 420}),
      Image1(*this, "Image1", {180, 780, 480, 480}),
      wbStatus(*this, "wbStatus", {}),
      lblActionBar(*this, "lblActionBar", {}),
      lblActionBorder(*this, "lblActionBorder", {}),
      ContinueOk(*this, "ContinueOk", {}),
      session_(session),
      destinationWord_(std::move(destinationWord)) {
    caption = "Murvane";
    escapeCloses = true;
    TitelBar1.caption = " Murvane";
    Image1.setPicture({.bytes = {}, .drawing = std::move(drawing)});
    wbStatus.accessibleName = "Export options";
    ContinueOk.onClick = [this] {
        // Notices let events run, and the second click of a double click among them.
        const forms::InputOff quiet(*this);
        ContinueOk_Click();
    };
    wbStatus.onBeforeNavigate = [this](std::string_view url) {
        return wbStatus_BeforeNavigate2(url);
    };
}

void OptionsForm::beginForm() {
    topmost = true;
    shadow_.emplace().Shadow(*this);
}

void OptionsForm::showPanel() {
    SetupActionPanel(*this, wbStatus, actionBar());
    if (!message_.empty()) RenderPanel();
    // Not the page, which comes first: its engine keeps Enter from the button.
    if (ContinueOk.enabled) focus = &ContinueOk;
}

ActionBar OptionsForm::actionBar() {
    return {.bar = lblActionBar, .button = ContinueOk, .border = lblActionBorder};
}

void OptionsForm::SetPanelMessage(std::string message, std::string kind) {
    message_ = std::move(message);
    // A screen reader reads what has the keyboard, and that is the button.
    ContinueOk.accessibleDescription = onOneLine(message_);
    kind_ = std::move(kind);
    RenderPanel();
}

void OptionsForm::showNothingSelected() {
    ContinueOk.enabled = false;
    SetPanelMessage("No objects were selected for pasting", "warning");
}

void OptionsForm::RenderPanel() {
    ShowActionPanel(session_.host, wbStatus,
                    {.message = message_,
                     .kind = kind_,
                     .destinationWord = destinationWord_,
                     .options = BuildOptionsMarkup(),
                     .tools = BuildToolsMarkup()});
    RestoreActionZOrder(wbStatus, actionBar());
}

bool OptionsForm::wbStatus_BeforeNavigate2(std::string_view url) {
    const std::string action = ActionKeyFromUrl(url);
    if (!action.empty()) {
        RunPanelAction(action);
        return true;
    }
    const std::string choice = SelectKeyFromUrl(url);
    if (!choice.empty()) {
        const std::size_t slash = choice.find('/');
        if (slash != std::string::npos)
            SelectChoice(choice.substr(0, slash), choice.substr(slash + 1));
        RenderPanel();
        return true;
    }
    const std::string option = ToggleKeyFromUrl(url);
    if (option.empty()) return false;
    ToggleOption(option);
    RenderPanel();
    return true;
}

std::string OptionsForm::optionRow(std::string_view key, const forms::CheckBox& box) {
    return OptionRowHtml(key, box.caption, box.isChecked(), box.enabled);
}

void OptionsForm::flip(forms::CheckBox& box) {
    using State = forms::CheckBox::State;
    box.setValue(box.isChecked() ? State::Unchecked : State::Checked);
}

}  // namespace panels
