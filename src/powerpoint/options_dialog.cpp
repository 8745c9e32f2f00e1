#include "powerpoint/options_dialog.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

#include "catalogue/export_run.h"
#include "catalogue/failed_items.h"
#include "forms/desktop.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "panels/dialogs.h"
#include "panels/panel_page.h"
#include "powerpoint/formats.h"
#include "powerpoint/layout_form.h"
#include "powerpoint/picture_styles_form.h"
#include "session/alerts_off.h"
#include "session/powerpoint_session.h"
#include "session/read_only.h"

namespace powerpoint {

namespace {

using catalogue::ExportFormat;
/// By format.
constexpr std::array<std::string_view, 4> formatNames = {
    "Pictures", "editable within PowerPoint", "Excel embedded", " embedded linked objects"};

constexpr const char* noPowerPoint =
    "No open PowerPoint found. \r Please open an existing presentation or create a new one";
constexpr const char* noPresentation =
    "No open PowerPoint presentation found. \r Please open an existing presentation or create a "
    "new one";
constexpr const char* slideNumberTooHigh =
    "At least one Slide Number in the list is greater\r"
    "than the number of slides in the PowerPoint file.\r"
    "Export can't take place ";

}  // namespace

Dialog::Dialog(forms::Desktop& theDesktop, session::OfficeSession& session,
               catalogue::ExportList& list, const catalogue::ExportChoices& choices)
    : ExportDialog(theDesktop, session, list, choices, "Dialog", "PowerPoint", "icon:powerpoint"),
      Frame3(*this, "Frame3", {180, 1500, 8880, 1740}),
      SlideTitle(*this, "SlideTitle", {180, 300, 8400, 300}, &Frame3),
      SourceInc(*this, "SourceInc", {180, 720, 8400, 300}, &Frame3),
      CheckShadow(*this, "CheckShadow", {180, 1140, 8400, 300}, &Frame3) {
    SlideTitle.caption = "Use captions as slide title";
    SourceInc.caption = "Include source file sheet at the bottom of each slide";
    CheckShadow.caption = "Add shadow to pasted items";
}

void Dialog::Form_Load() {
    beginForm();
    options_ = {};
    // Slides that exist already have their titles.
    SlideTitle.enabled = !choices_.predefinedSlides;
    Frame3.visible = false;
    CheckShadow.visible = false;
    if (!findsPresentation()) return;

    announcePresentation();
    showPanel();
}

bool Dialog::findsPresentation() {
    if (!session().PowerPointFound) {
        session::ShowWarningNotice(session().notices, noPowerPoint);
        desktop().unload(*this);
        return false;
    }
    office::ContinueOnFailure scope;
    const int windows =
        scope.read([&] { return session().PowerPointApp.get("Windows").get("Count").toLong(); }, 0);
    if (windows != 0) return true;
    session::ShowWarningNotice(session().notices, noPresentation);
    desktop().unload(*this);
    return false;
}

/// Decides which presentation the export goes to, and tells the user.
void Dialog::announcePresentation() {
    session().SessionPresentation.release();
    office::ContinueOnFailure().attempt([&] {
        session().SessionPresentation =
            session().PowerPointApp.get("ActivePresentation").toObject();
    });
    announce(catalogue::CountTakenRows(session(), list_, choices_));
}

std::string Dialog::announcement() {
    return fmt::format("{} object(s) will be pasted to \r{}\ras {}", taken_,
                       session().SessionPresentation.get("Name").toText(),
                       formatNames.at(static_cast<std::size_t>(choices_.format)));
}

std::string Dialog::BuildToolsMarkup() const {
    if (choices_.format != ExportFormat::Pictures) return {};
    return panels::ToolBarHtml(panels::ToolButtonHtml("style", "Style", "tool-icon-style",
                                                      "Apply a style within PowerPoint") +
                               panels::ToolButtonHtml("layout", "Layout", "tool-icon-layout",
                                                      "Apply size and position within the slide"));
}

std::string Dialog::BuildOptionsMarkup() const {
    std::string rows = optionRow("slideTitle", SlideTitle) + optionRow("sourceInc", SourceInc);
    if (choices_.format == ExportFormat::Editable) rows += optionRow("checkShadow", CheckShadow);
    return panels::OptionsBlockHtml({}, rows);
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
    if (box != nullptr && box->enabled) flip(*box);
}

void Dialog::RunPanelAction(std::string_view key) {
    const std::string lower = office::lowerCase(key);
    if (lower == "style") {
        PredefinedStyles styles(desktop(), session().PictureStyle);
        panels::ShowToolForm(styles);
    } else if (lower == "layout") {
        LayoutForm layout(desktop(), session());
        panels::ShowToolForm(layout);
        if (layout.isApplied()) options_.placesShapes = true;
    }
}

void Dialog::ContinueOk_Click() {
    if (!presentationIsThere()) {
        // With another one open the user sees its name ahead of the next click.
        session::AttachPowerPoint(session());
        announcePresentation();
        if (!session().SessionPresentation) SetPanelMessage(noPowerPoint, "warning");
        return;
    }
    if (session::refusesAsReadOnly(session(), session().SessionPresentation, "presentation"))
        return;
    if (!slideNumbersFit()) {
        session::ShowWarningNotice(session().notices, slideNumberTooHigh);
        return;
    }
    options_.titles = SlideTitle.isChecked();
    options_.sourceLine = SourceInc.isChecked();
    options_.shadow = CheckShadow.isChecked();
    options_.look = session().PictureStyle;
    panels::RunExport(session(), *this, taken_, [this] {
        catalogue::exportAndTellOfFailed(session(), [this](auto& failed) { runBatch(failed); });
    });
}

void Dialog::runBatch(catalogue::FailedItems& failed) {
    catalogue::NeededDocuments needed(session());
    needed.addTarget("PowerPoint.Application", "presentation", session().SessionPresentation);
    Batch batch{session(),
                list_,
                choices_,
                [&](const auto& row, const auto& failure) {
                    if (needed.areOpen()) failed.add(row, failure);
                },
                options_,
                [&](const auto& failure) {
                    if (needed.areOpen()) failed.add(failure);
                }};
    batch.needed = &needed;
    ExportRows(batch);
}

bool Dialog::presentationIsThere() {
    return office::ContinueOnFailure().attempt(
        [&] { static_cast<void>(session().SessionPresentation.get("Name").toText()); });
}

bool Dialog::slideNumbersFit() {
    const std::int32_t slides = session().SessionPresentation.get("Slides").get("Count").toLong();
    const auto rows = catalogue::takeRows(session(), list_, choices_);
    return std::all_of(rows.begin(), rows.end(),
                       [&](const catalogue::TakenRow& row) { return row.slide <= slides; });
}

void StartPowerPointExport(session::OfficeSession& session, forms::Desktop& desktop,
                           catalogue::ExportList& list, const catalogue::ExportChoices& choices) {
    session::AttachPowerPoint(session);
    const session::AlertsOff quiet(session.ExcelApp);
    Dialog dialog(desktop, session, list, choices);
    panels::ShowToolForm(dialog);
}

}  // namespace powerpoint
