#include "panels/powerpoint_dialog.h"

#include <fmt/format.h>

#include <cmath>
#include <cstddef>
#include <utility>

#include "forms/desktop.h"
#include "furniture/button_styles.h"
#include "office/text.h"
#include "panels/action_panel.h"
#include "panels/panel_blocks.h"
#include "panels/panel_links.h"
#include "panels/show_tool_form.h"
#include "session/closing.h"
#include "session/powerpoint_session.h"

namespace panels {

namespace {

using forms::Twips;
using State = forms::CheckBox::State;

constexpr Twips width = 9240;
constexpr Twips height = 6780;

constexpr int pictures = 0;
constexpr int editable = 1;

constexpr const char* noPowerPoint =
    "No open PowerPoint found. \r Please open an existing presentation or create a new one";
constexpr const char* noPresentation =
    "No open PowerPoint presentation found. \r Please open an existing presentation or create a "
    "new one";
constexpr const char* slideNumberTooHigh =
    "At least one Slide Number in the list is greater\r"
    "than the number of slides in the PowerPoint file.\r"
    "Export can't take place ";

std::string optionRow(std::string_view key, const forms::CheckBox& box) {
    return OptionRowHtml(key, box.caption, box.isChecked(), box.enabled);
}

}  // namespace

Dialog::Dialog(forms::Desktop& theDesktop, session::OfficeSession& session,
               PowerPointDialogLinks links)
    : Form(theDesktop, "Dialog", width, height),
      TitelBar1(*this, "TitelBar1", {0, 0, width, 420}),
      Image1(*this, "Image1", {180, 780, 480, 480}),
      Label7(*this, "Label7", {780, 900, 3600, 240}),
      Frame3(*this, "Frame3", {180, 1500, 8880, 1740}),
      SlideTitle(*this, "SlideTitle", {180, 300, 8400, 300}, &Frame3),
      SourceInc(*this, "SourceInc", {180, 720, 8400, 300}, &Frame3),
      CheckShadow(*this, "CheckShadow", {180, 1140, 8400, 300}, &Frame3),
      CreateBlankPPT(*this, "CreateBlankPPT", {7560, 840, 1200, 420}),
      wbStatus(*this, "wbStatus", {}),
      lblActionBar(*this, "lblActionBar", {}),
      lblActionBorder(*this, "lblActionBorder", {}),
      lblActionCaption(*this, "lblActionCaption", {}),
      ContinueOk(*this, "ContinueOk", {}),
      session_(session),
      links_(std::move(links)) {
    caption = "Murvane";
    escapeCloses = true;
    TitelBar1.caption = " Murvane";
    Image1.setPicture({.bytes = {}, .drawing = "icon:powerpoint"});
    Label7.caption = "Active PowerPoint file:";
    SlideTitle.caption = "Use captions as slide title";
    SourceInc.caption = "Include source file sheet at the bottom of each slide";
    CheckShadow.caption = "Add shadow to pasted items";
    CreateBlankPPT.caption = "New";
    // It does nothing. Covered by the panel, it would only be a stop on the way of the Tab key.
    CreateBlankPPT.visible = false;
    ContinueOk.caption = "Continue  >";
    wbStatus.accessibleName = "Export options";
    ContinueOk.onClick = [this] { ContinueOk_Click(); };
    wbStatus.onBeforeNavigate = [this](std::string_view url) {
        return wbStatus_BeforeNavigate2(url);
    };
}

void Dialog::Form_Load() {
    startAsDesigned();
    topmost = true;
    session_.DefaultPlacement = true;
    if (session_.ExcelApp) {
        session_.ActiveBook = session_.ExcelApp.get("ActiveWorkbook").toObject();
    }
    // Slides that exist already have their titles.
    if (links_.predefinedSlides()) SlideTitle.enabled = false;
    FormatName_ = readFormatName();
    lblActionCaption.visible = false;
    HideRealControls();
    shadow_.emplace().Shadow(*this);
    if (!findsPresentation()) return;

    office::ContinueOnFailure scope;
    showFirstMessage(scope);
    if (links_.predefinedSlides()) CreateBlankPPT.enabled = false;
    session_.MainFormOpen = false;
    session_.PowerPointDialogOpen = true;
    SetupActionPanel(*this, wbStatus, actionBar());
    if (!message_.empty()) RenderPanel();
    furniture::StyleAccentButton(ContinueOk, "Continue  >", 10.5);
}

/// A form that is loaded again comes up as it was made.
void Dialog::startAsDesigned() {
    message_.clear();
    kind_.clear();
    for (forms::CheckBox* box : {&SlideTitle, &SourceInc, &CheckShadow}) {
        box->startWith(State::Unchecked);
        box->enabled = true;
        box->visible = true;
    }
    CreateBlankPPT.enabled = true;
    ContinueOk.enabled = true;
}

void Dialog::HideRealControls() {
    Frame3.visible = false;
    CheckShadow.visible = false;
}

std::string Dialog::readFormatName() const {
    static constexpr std::array<std::string_view, 4> names = {
        "Pictures", "editable within PowerPoint", "Excel embedded", " embedded linked objects"};
    std::string name;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (links_.formatIsChosen(static_cast<int>(i))) name = names.at(i);
    }
    return name;
}

bool Dialog::findsPresentation() {
    if (!session_.PowerPointFound) {
        session::ShowWarningNotice(session_.notices, noPowerPoint);
        desktop().unload(*this);
        return false;
    }
    office::ContinueOnFailure scope;
    const int windows =
        scope.read([&] { return session_.PowerPointApp.get("Windows").get("Count").toLong(); }, 0);
    if (windows != 0) return true;
    session::ShowWarningNotice(session_.notices, noPresentation);
    desktop().unload(*this);
    return false;
}

void Dialog::showFirstMessage(office::ContinueOnFailure& scope) {
    if (session_.CheckedCount < 1) {
        ContinueOk.enabled = false;
        SetPanelMessage("No objects were selected for pasting", "warning");
        return;
    }
    scope.attempt([&] {
        session_.SessionPresentation = session_.PowerPointApp.get("ActivePresentation").toObject();
    });
    scope.attempt([&] {
        SetPanelMessage(
            fmt::format("{} object(s) will be pasted to \r{}\ras {}", session_.CheckedCount,
                        session_.SessionPresentation.get("Name").toText(), FormatName_),
            "info");
    });
}

void Dialog::Form_Unload() {
    session_.PowerPointDialogOpen = false;
    // A dialog that was closed without an export gives way to the main form again.
    session_.MainFormOpen = desktop().findLoaded("UserformObj") != nullptr;
}

ActionBar Dialog::actionBar() {
    return {.bar = lblActionBar,
            .button = ContinueOk,
            .border = &lblActionBorder,
            .caption = nullptr,
            .extraButtons = {},
            .footer = nullptr};
}

void Dialog::SetPanelMessage(std::string message, std::string kind) {
    message_ = std::move(message);
    kind_ = std::move(kind);
    RenderPanel();
}

void Dialog::RenderPanel() {
    ShowActionPanel(session_.host, wbStatus,
                    {.message = message_,
                     .kind = kind_,
                     .footer = {},
                     .destinationWord = "PowerPoint",
                     .options = BuildOptionsMarkup(),
                     .tools = BuildToolsMarkup()});
    RestoreActionZOrder(wbStatus, actionBar());
}

std::string Dialog::BuildToolsMarkup() const {
    if (!links_.formatIsChosen(pictures)) return {};
    return ToolBarHtml(
        ToolButtonHtml("style", "Style", "tool-icon-style", "Apply a style within PowerPoint") +
        ToolButtonHtml("layout", "Layout", "tool-icon-layout",
                       "Apply size and position within the slide"));
}

std::string Dialog::BuildOptionsMarkup() const {
    std::string rows = optionRow("slideTitle", SlideTitle) + optionRow("sourceInc", SourceInc);
    if (links_.formatIsChosen(editable)) rows += optionRow("checkShadow", CheckShadow);
    return OptionsBlockHtml({}, rows);
}

bool Dialog::wbStatus_BeforeNavigate2(std::string_view url) {
    const std::string action = ActionKeyFromUrl(url);
    if (!action.empty()) {
        RunPanelAction(action);
        return true;
    }
    bool cancel = false;
    const std::string option = CancelIfToggle(url, cancel);
    if (!option.empty()) {
        ToggleOption(option);
        RenderPanel();
    }
    return cancel;
}

forms::CheckBox* Dialog::optionOf(std::string_view key) {
    const std::string lower = office::lowerCase(key);
    if (lower == "slidetitle") return &SlideTitle;
    if (lower == "sourceinc") return &SourceInc;
    if (lower == "checkshadow") return &CheckShadow;
    return nullptr;
}

void Dialog::ToggleOption(std::string_view key) {
    forms::CheckBox* box = optionOf(key);
    if (box == nullptr || !box->enabled) return;
    box->setValue(box->isChecked() ? State::Unchecked : State::Checked);
}

void Dialog::RunPanelAction(std::string_view key) const {
    const std::string lower = office::lowerCase(key);
    forms::Form* tool = nullptr;
    if (lower == "style") tool = links_.styles;
    if (lower == "layout") tool = links_.layout;
    if (tool != nullptr) ShowToolForm(*tool);
}

void Dialog::ContinueOk_Click() {
    const auto format = static_cast<std::size_t>(session_.ExportFormatIndex);
    office::ContinueOnFailure scope;
    if (!links_.predefinedSlides()) {
        scope.attempt([&] { session_.CheckedCount = links_.countRowsForExport(); });
    } else if (!slideNumbersFit(scope)) {
        session::ShowWarningNotice(session_.notices, slideNumberTooHigh);
        return;
    }
    copyOptions();
    if (!presentationIsThere(scope)) {
        SetPanelMessage(noPowerPoint, "warning");
        return;
    }
    if (format >= links_.batches.size() || !links_.batches.at(format)) {
        SetPanelMessage("This version of Murvane can't export in this format yet.", "warning");
        return;
    }
    desktop().unload(*this);
    desktop().letEventsRun();
    CloseDialogsShowProgress();

    session_.SessionPresentation = session_.PowerPointApp.get("ActivePresentation").toObject();
    links_.batches.at(format)();
    session::CloseAllAndEnd(session_, formHooks(desktop()));
}

/// Counts the rows that go to a slide on the way; the count ends at the first number that is too
/// high.
bool Dialog::slideNumbersFit(office::ContinueOnFailure& scope) {
    std::optional<double> slides;
    scope.attempt([&] {
        slides =
            session_.PowerPointApp.get("ActivePresentation").get("Slides").get("Count").toDouble();
    });
    session_.CheckedCount = 0;
    for (const PowerPointDialogLinks::Row& row : links_.rows()) {
        if (!row.isChecked || row.slideNumber.empty()) continue;
        ++session_.CheckedCount;
        // Where the slides can't be counted, the presentation has gone; that is found out next.
        if (slides && std::nearbyint(office::leadingNumber(row.slideNumber)) > *slides) {
            return false;
        }
    }
    return true;
}

void Dialog::copyOptions() {
    session_.slideTitle = SlideTitle.isChecked();
    session_.sourceInc = SourceInc.isChecked();
    session_.checkShadow = CheckShadow.isChecked();
}

bool Dialog::presentationIsThere(office::ContinueOnFailure& scope) {
    if (!session_.PowerPointFound) return false;
    return scope.attempt([&] { session::CheckPresentations(session_); }) &&
           session_.PresentationsFound;
}

void Dialog::CloseDialogsShowProgress() {
    office::ContinueOnFailure scope;
    const session::FormHooks hooks = formHooks(desktop());
    for (const char* dialog :
         {"Dialog", "DialogWord", "DialogPDF", "DialogHTML", "DialogImageFiles"}) {
        scope.attempt([&] { hooks.UnloadForm(dialog); });
    }
    session_.progress.show();
}

}  // namespace panels
