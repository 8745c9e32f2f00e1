#include "catalogue/export_dialog.h"

#include <utility>

#include "office/failure_patterns.h"
#include "panels/markup.h"
#include "panels/panel_page.h"

namespace catalogue {

namespace {

using forms::Twips;

constexpr Twips dialogWidth = 9240;
constexpr Twips dialogHeight = 6780;

}  // namespace

ExportDialog::ExportDialog(forms::Desktop& theDesktop, session::OfficeSession& session,
                           ExportList& list, ExportChoices choices, std::string name,
                           std::string destinationWord, std::string drawing)
    : Form(theDesktop, std::move(name), dialogWidth, dialogHeight),
      TitelBar1(*this, "TitelBar1", {0, 0, dialogWidth, 420}),
      Image1(*this, "Image1", {180, 780, 480, 480}),
      wbStatus(*this, "wbStatus", {}),
      lblActionBar(*this, "lblActionBar", {}),
      lblActionBorder(*this, "lblActionBorder", {}),
      ContinueOk(*this, "ContinueOk", {}),
      list_(list),
      choices_(choices),
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

void ExportDialog::beginForm() {
    topmost = true;
    shadow_.emplace().Shadow(*this);
}

void ExportDialog::showPanel() {
    panels::SetupActionPanel(*this, wbStatus, actionBar());
    if (!message_.empty()) RenderPanel();
    // Not the page, which comes first: its engine keeps Enter from the button.
    if (ContinueOk.enabled) focus = &ContinueOk;
}

panels::ActionBar ExportDialog::actionBar() {
    return {.bar = lblActionBar, .button = ContinueOk, .border = lblActionBorder};
}

void ExportDialog::SetPanelMessage(std::string message, std::string kind) {
    message_ = std::move(message);
    // A screen reader reads what has the keyboard, and that is the button.
    ContinueOk.accessibleDescription = panels::onOneLine(message_);
    kind_ = std::move(kind);
    RenderPanel();
}

void ExportDialog::announce(std::int32_t taken) {
    taken_ = taken;
    if (taken_ < 1) {
        ContinueOk.enabled = false;
        SetPanelMessage("No objects were selected for pasting", "warning");
        return;
    }
    office::ContinueOnFailure().attempt([this] { SetPanelMessage(announcement(), "info"); });
}

void ExportDialog::RenderPanel() {
    panels::ShowActionPanel(session_.host, wbStatus,
                            {.message = message_,
                             .kind = kind_,
                             .destinationWord = destinationWord_,
                             .options = BuildOptionsMarkup(),
                             .tools = BuildToolsMarkup()});
    panels::RestoreActionZOrder(wbStatus, actionBar());
}

bool ExportDialog::wbStatus_BeforeNavigate2(std::string_view url) {
    const std::string action = panels::ActionKeyFromUrl(url);
    if (!action.empty()) {
        RunPanelAction(action);
        return true;
    }
    const std::string choice = panels::SelectKeyFromUrl(url);
    if (!choice.empty()) {
        const std::size_t slash = choice.find('/');
        if (slash != std::string::npos)
            SelectChoice(choice.substr(0, slash), choice.substr(slash + 1));
        RenderPanel();
        return true;
    }
    const std::string option = panels::ToggleKeyFromUrl(url);
    if (option.empty()) return false;
    ToggleOption(option);
    RenderPanel();
    return true;
}

std::string ExportDialog::optionRow(std::string_view key, const forms::CheckBox& box) {
    return panels::OptionRowHtml(key, box.caption, box.isChecked(), box.enabled);
}

void ExportDialog::flip(forms::CheckBox& box) {
    using State = forms::CheckBox::State;
    box.setValue(box.isChecked() ? State::Unchecked : State::Checked);
}

}  // namespace catalogue
