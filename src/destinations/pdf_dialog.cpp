#include "destinations/pdf_dialog.h"

#include <fmt/format.h>

#include <array>
#include <utility>

#include "destinations/pdf_file.h"
#include "destinations/row_walk.h"
#include "destinations/size_factor.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "panels/dialogs.h"
#include "panels/panel_page.h"

namespace destinations {

namespace {

using State = forms::CheckBox::State;

/// The key of each row, in their order.
constexpr std::array<std::pair<const char*, forms::CheckBox DialogPDF::*>, 4> rows = {{
    {"pageTitles", &DialogPDF::Check3},
    {"includePath", &DialogPDF::Check1},
    {"openPdf", &DialogPDF::Check2},
    {"coverPage", &DialogPDF::CoverT},
}};

}  // namespace

DialogPDF::DialogPDF(forms::Desktop& theDesktop, session::OfficeSession& session,
                     catalogue::ExportList& list, const catalogue::ExportChoices& choices)
    : ExportDialog(theDesktop, session, list, choices, "DialogPDF", "PDF", "icon:word"),
      Check3(*this, "Check3", {}),
      Check1(*this, "Check1", {}),
      Check2(*this, "Check2", {}),
      CoverT(*this, "CoverT", {}),
      txtAmount(*this, "txtAmount", {}),
      CoverText(*this, "CoverText", {}) {
    Check3.caption = "Use captions as page titles";
    Check1.caption = "Include path, name and sheet at the bottom of each page";
    Check2.caption = "Open PDF file when done";
    CoverT.caption = "Include cover page";
    Check3.setValue(State::Checked);
    Check2.setValue(State::Checked);
    txtAmount.setText("70");
    for (const auto& [key, box] : rows) (this->*box).visible = false;
    txtAmount.visible = false;
    CoverText.visible = false;
}

void DialogPDF::Form_Load() {
    beginForm();
    CoverText.enabled = CoverT.isChecked();
    announce(takenRowsOfFiles(session(), list_, choices_));
    showPanel();
}

std::string DialogPDF::announcement() {
    return fmt::format(
        "{} object(s) will be pasted to\r\r as pictures\r starting at the insertion point", taken_);
}

std::string DialogPDF::BuildOptionsMarkup() const {
    std::string markup;
    for (const auto& [key, box] : rows) markup += optionRow(key, this->*box);
    markup += panels::FieldRowHtml("sizeFactor", "Items size factor (1-100)", txtAmount.text(),
                                   "of maximum size", true);
    if (CoverT.isChecked())
        markup += panels::TextAreaRowHtml("coverText", "Cover page text", CoverText.text(),
                                          CoverText.enabled);
    return panels::OptionsBlockHtml({}, markup);
}

void DialogPDF::ToggleOption(std::string_view wanted) {
    for (const auto& [key, box] : rows) {
        if (!office::sameIgnoringCase(wanted, key)) continue;
        // What has been typed would go with the page that the click replaces.
        readFields();
        flip(this->*box);
        CoverText.enabled = CoverT.isChecked();
    }
}

void DialogPDF::readFields() {
    txtAmount.setText(panels::ReadFieldValue(wbStatus, "sizeFactor", txtAmount.text()));
    if (CoverT.isChecked())
        CoverText.setText(panels::ReadFieldValue(wbStatus, "coverText", CoverText.text()));
}

void DialogPDF::ContinueOk_Click() {
    readFields();
    MakeBlankDoc_Paste_ExportPdf_AndClose();
}

PdfOptions DialogPDF::options() {
    const SizeFactor factor = sizeFactorOf(txtAmount.text());
    if (!factor.isGood) {
        session::ShowWarningNotice(
            session().notices,
            fmt::format("The size factor is a number from 1 to 100; {} is used.", factor.percent));
        txtAmount.setText(fmt::format("{}", factor.percent));
        RenderPanel();
    }
    return {.pageTitles = Check3.isChecked(),
            .includePath = Check1.isChecked(),
            .coverPage = CoverT.isChecked(),
            .sizeFactor = factor.percent,
            .coverText = CoverText.text()};
}

void DialogPDF::MakeBlankDoc_Paste_ExportPdf_AndClose() {
    const PdfOptions wanted = options();
    const std::string path = pdfPath(session(), "TempWord");
    session().progress.showItem(0, taken_);
    catalogue::NeededDocuments needed(session());
    office::ContinueOnFailure scope;
    PdfResult result;
    const bool went = scope.attempt([&] {
        walkAndTell(session(), list_, needed, [&](RowBatch& batch) {
            result = ExportRowsToPdf(batch, wanted, path);
            return result.walk;
        });
    });
    if (!went) {
        session::ShowErrorNotice(session().notices, scope.lastFailure()->description());
    } else if (result.isMade && Check2.isChecked() && !OpenPdfFile(session(), path)) {
        // Events run until the PDF is open.
        session::ShowWarningNotice(
            session().notices,
            fmt::format("PDF was created but couldn't be opened automatically:\r\n{}", path));
    }
}

void StartPdfExport(session::OfficeSession& session, forms::Desktop& desktop,
                    catalogue::ExportList& list, const catalogue::ExportChoices& choices) {
    DialogPDF dialog(desktop, session, list, choices);
    panels::ShowToolForm(dialog);
}

}  // namespace destinations
