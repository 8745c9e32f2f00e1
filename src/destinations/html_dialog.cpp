#include "destinations/html_dialog.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "catalogue/number_entry.h"
#include "destinations/html_export.h"
#include "destinations/output_folder.h"
#include "destinations/row_walk.h"
#include "destinations/size_factor.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "panels/dialogs.h"
#include "panels/panel_page.h"

namespace destinations {

namespace {

using State = forms::CheckBox::State;

}  // namespace

DialogHTML::DialogHTML(forms::Desktop& theDesktop, session::OfficeSession& session,
                       catalogue::ExportList& list, const catalogue::ExportChoices& choices)
    : ExportDialog(theDesktop, session, list, choices, "DialogHTML", "HTML", "icon:html"),
      Check3(*this, "Check3", {}),
      SameWidthHTNL(*this, "SameWidthHTNL", {}),
      txtAmount(*this, "txtAmount", {}),
      TextBox10(*this, "TextBox10", {}),
      Label2(*this, "Label2", {}),
      Label5(*this, "Label5", {}) {
    Check3.caption = "Use captions as titles";
    SameWidthHTNL.caption = "Make all items same optimized width (otherwise keep Excel item size)";
    Label2.caption = "Width size factor (1-100)";
    Label5.caption = "Blank lines between items";
    Check3.startWith(State::Checked);
    txtAmount.startWith("70");
    TextBox10.startWith("10");
    SameWidthHTNL.onClick = [this] {
        Label2.enabled = txtAmount.enabled = SameWidthHTNL.isChecked();
    };
    TextBox10.onChange = [this] {
        TextBox10.setText(
            std::string(office::trim(catalogue::Validate_Number_Entry(TextBox10.text()))));
    };
    for (forms::Control* hidden : std::initializer_list<forms::Control*>{
             &Check3, &SameWidthHTNL, &txtAmount, &TextBox10, &Label2, &Label5})
        hidden->visible = false;
}

void DialogHTML::Form_Load() {
    beginForm();
    Label2.enabled = txtAmount.enabled = SameWidthHTNL.isChecked();
    office::ContinueOnFailure().attempt(
        [&] { session().host.makeFolder(defaultHtmlFolder(session())); });
    announce(takenRowsOfFiles(session(), list_, choices_));
    showPanel();
}

std::string DialogHTML::announcement() {
    return fmt::format("{} object(s) will be inserted in {}/MurvaneXXX.Html", taken_,
                       defaultHtmlFolder(session()));
}

std::string DialogHTML::BuildOptionsMarkup() const {
    return panels::OptionsBlockHtml(
        {}, optionRow("useTitles", Check3) + optionRow("sameWidth", SameWidthHTNL) +
                panels::FieldRowHtml("widthFactor", Label2.caption, txtAmount.text(),
                                     "of maximum size", txtAmount.enabled) +
                panels::FieldRowHtml("skipLines", Label5.caption, TextBox10.text(), "lines", true));
}

void DialogHTML::ToggleOption(std::string_view key) {
    // What has been typed would go with the page that the click replaces.
    readFields();
    const std::string lower = office::lowerCase(key);
    if (lower == "usetitles") flip(Check3);
    if (lower == "samewidth") flip(SameWidthHTNL);
}

void DialogHTML::readFields() {
    txtAmount.setText(panels::ReadFieldValue(wbStatus, "widthFactor", txtAmount.text()));
    TextBox10.setText(panels::ReadFieldValue(wbStatus, "skipLines", TextBox10.text()));
}

/// A width that can't be is told, and the export goes on with the nearest one that can.
HtmlOptions DialogHTML::options() {
    constexpr double widestPx = 1000;
    constexpr double percent = 100;
    const SizeFactor factor = sizeFactorOf(txtAmount.text());
    if (SameWidthHTNL.isChecked() && !factor.isGood && !txtAmount.text().empty()) {
        if (factor.isNumber) {
            session::ShowWarningNotice(session().notices, "Some max-min-error message");
        } else {
            session::ShowErrorNotice(session().notices, "Type mismatch");
        }
    }
    const double lines = std::trunc(office::leadingNumber(TextBox10.text()));
    return {.useTitles = Check3.isChecked(),
            .widthPx = factor.percent * widestPx / percent,
            .skipLines = static_cast<std::int32_t>(std::clamp<double>(lines, 0, mostBlankLines)),
            .folder = defaultHtmlFolder(session())};
}

void DialogHTML::ContinueOk_Click() {
    readFields();
    const HtmlOptions wanted = options();
    const bool asImages = SameWidthHTNL.isChecked();
    if (!takesOutput(session(), wanted.folder)) {
        SetPanelMessage(cantWriteTo(session(), wanted.folder), "warning");
        return;
    }
    panels::RunExport(session(), *this, taken_, [&] { runBatch(wanted, asImages); });
}

void DialogHTML::runBatch(const HtmlOptions& wanted, bool asImages) {
    catalogue::NeededDocuments needed(session());
    HtmlResult result;
    walkAndTell(session(), list_, needed, [&](RowBatch& batch) {
        result =
            asImages ? ExportRowsToHtmlAsImages(batch, wanted) : PublishRowsToHtml(batch, wanted);
        return result.walk;
    });
    if (!result.file.empty()) openOrName(session(), result.file);
}

void StartHtmlExport(session::OfficeSession& session, forms::Desktop& desktop,
                     catalogue::ExportList& list, const catalogue::ExportChoices& choices) {
    DialogHTML dialog(desktop, session, list, choices);
    panels::ShowToolForm(dialog);
}

}  // namespace destinations
