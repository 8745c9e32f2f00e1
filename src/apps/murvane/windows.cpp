#include "apps/murvane/windows.h"

#include "apps/version.h"
#include "catalogue/inventory.h"
#include "catalogue/list_rows.h"
#include "panels/about_form.h"
#include "panels/show_tool_form.h"
#include "powerpoint/pictures.h"
#include "powerpoint/start_export.h"
#include "session/closing.h"
#include "session/notices.h"

namespace apps {

Windows::Windows(forms::Desktop& desktop, session::OfficeSession& session)
    : desktop_(desktop),
      session_(session),
      formHooks_(panels::formHooks(desktop)) {}

Windows::~Windows() = default;

session::CommandHandlers Windows::handlers() {
    session::CommandHandlers handlers;
    handlers.CountWorkbookItems = [this] { catalogue::CountWorkbookItems(session_); };
    handlers.ShowAboutForm = [this] { panels::ShowAboutForm(session_, desktop_, version); };
    handlers.ShowLayoutUtility = [this] { powerpoint::ShowLayoutUtility(session_, desktop_); };
    handlers.ShowMainForm = [this] { showMainForm(); };
    handlers.forms = formHooks_;
    return handlers;
}

void Windows::showMainForm() {
    mainForm_ = std::make_unique<catalogue::UserformObj>(desktop_, session_, mainFormHooks());
    desktop_.show(*mainForm_, forms::ShowMode::Modeless);
    // Not by `MainFormOpen`: an options dialog clears it, and may be closed again without an
    // export.
    while (desktop_.isLoaded(*mainForm_)) desktop_.waitForEvents();
    session_.MainFormOpen = false;
}

catalogue::MainFormHooks Windows::mainFormHooks() {
    catalogue::MainFormHooks hooks;
    hooks.StartPowerPointExport = [this] {
        powerpoint::StartPowerPointExport(session_, mainForm_->list());
        showPowerPointDialog();
    };
    hooks.CheckSlideNumbersAndShowDialog = [this] {
        powerpoint::CountRowsWithSlideNumber(session_, mainForm_->list());
        showPowerPointDialog();
    };
    hooks.InsertOneItem = [this](const catalogue::ExportItem& row) { return insertOneItem(row); };
    return hooks;
}

void Windows::showPowerPointDialog() {
    if (!styles_) styles_ = std::make_unique<powerpoint::PredefinedStyles>(desktop_, session_);
    if (!layout_) layout_ = std::make_unique<powerpoint::LayoutForm>(desktop_, session_);
    dialog_ = std::make_unique<panels::Dialog>(desktop_, session_, dialogLinks());
    panels::ShowOptionsDialog(*dialog_);
}

panels::PowerPointDialogLinks Windows::dialogLinks() {
    panels::PowerPointDialogLinks links;
    links.predefinedSlides = [this] { return mainForm_->choices().predefinedSlides; };
    links.formatIsChosen = [this](int index) {
        return mainForm_->OptionFormat.at(static_cast<std::size_t>(index)).value();
    };
    links.rows = [this] {
        std::vector<panels::PowerPointDialogLinks::Row> rows;
        for (const catalogue::ExportItem& row : mainForm_->list().rows) {
            rows.push_back({row.checked, row.slideNumber});
        }
        return rows;
    };
    links.countRowsForExport = [this] {
        return static_cast<std::int16_t>(
            catalogue::CountExportableRows(session_, mainForm_->list()));
    };
    links.batches[0] = [this] {
        // The batch reads the rows while it lets events run.
        mainForm_->takesInput = false;
        powerpoint::ExportRowsAsPictures(session_, mainForm_->list(), mainForm_->choices(),
                                         formHooks_);
    };
    links.styles = styles_.get();
    links.layout = layout_.get();
    return links;
}

bool Windows::insertOneItem(const catalogue::ExportItem& row) {
    if (session_.ExportFormatIndex != 0) {
        session::ShowNotice(session_.notices, "This output format is not part of this version yet.",
                            "Murvane", "info", session::buttons::okOnly);
        return false;
    }
    const std::string& sheet = row.sheet;
    const std::int16_t slide = session_.CurrentSlideIndex;
    if (row.isChartSheet()) {
        powerpoint::InsertChartSheetPicture(session_, sheet, slide, row.caption);
    } else if (row.isEmbeddedChart()) {
        powerpoint::InsertEmbeddedChartPicture(session_, sheet, row.name, slide, row.caption);
    } else {
        powerpoint::InsertRangePicture(session_, row.name, slide, row.caption);
    }
    return true;
}

}  // namespace apps
