#include "destinations/word_dialog.h"

#include <fmt/format.h>

#include <array>
#include <utility>

#include "destinations/pdf_file.h"
#include "destinations/row_walk.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "panels/dialogs.h"
#include "panels/panel_page.h"
#include "session/read_only.h"
#include "session/waits.h"

namespace destinations {

namespace {

using catalogue::ExportFormat;

constexpr const char* noWord =
    "No open Word found. \r Please open an existing document or create a new one";

constexpr std::string_view formatName(ExportFormat format) {
    switch (format) {
        case ExportFormat::Editable:
            return "Excel editable";
        case ExportFormat::Embedded:
            return "Excel embedded";
        case ExportFormat::Linked:
            return "Linked embedded objects";
        default:
            return "pictures";
    }
}

/// The key of each row, in their order.
constexpr std::array<std::pair<const char*, forms::CheckBox DialogWord::*>, 4> rows = {{
    {"sameWidth", &DialogWord::SameWidth},
    {"addCaption", &DialogWord::AddCaption},
    {"checkShadow", &DialogWord::CheckShadow},
    {"pdfOutput", &DialogWord::PdfOutput},
}};

}  // namespace

DialogWord::DialogWord(forms::Desktop& theDesktop, session::OfficeSession& session,
                       catalogue::ExportList& list, const catalogue::ExportChoices& choices)
    : ExportDialog(theDesktop, session, list, choices, "DialogWord", "Word", "icon:word"),
      SameWidth(*this, "SameWidth", {}),
      AddCaption(*this, "AddCaption", {}),
      CheckShadow(*this, "CheckShadow", {}),
      PdfOutput(*this, "PdfOutput", {}) {
    SameWidth.caption = "Make all items same optimized width (otherwise keep Excel item size)";
    AddCaption.caption = "Insert caption below the pasted item";
    CheckShadow.caption = "Add shadow to pasted items";
    PdfOutput.caption = "Save document to PDF";
    for (const auto& [key, box] : rows) (this->*box).visible = false;
    PdfOutput.onClick = [this] { pdfIsWanted_ = true; };
}

void DialogWord::Form_Load() {
    beginForm();
    pdfIsWanted_ = false;
    const bool areObjects =
        choices_.format == ExportFormat::Embedded || choices_.format == ExportFormat::Linked;
    for (forms::CheckBox* box : {&SameWidth, &AddCaption, &CheckShadow}) box->enabled = !areObjects;
    if (!AttachWord(session())) {
        session::ShowWarningNotice(session().notices, noWord);
        desktop().unload(*this);
        return;
    }
    announce(catalogue::CountTakenRows(session(), list_, {}));
    showPanel();
}

std::string DialogWord::announcement() {
    return fmt::format(
        "{} object(s) will be pasted to\r{}\r as {}\r starting at the insertion point", taken_,
        session().SessionDocument.get("Name").toText(), formatName(choices_.format));
}

std::string DialogWord::BuildOptionsMarkup() const {
    std::string markup;
    for (const auto& [key, box] : rows) markup += optionRow(key, this->*box);
    return panels::OptionsBlockHtml({}, markup);
}

void DialogWord::ToggleOption(std::string_view wanted) {
    for (const auto& [key, box] : rows) {
        if (office::sameIgnoringCase(wanted, key) && (this->*box).enabled) flip(this->*box);
    }
}

bool DialogWord::documentIsThere() {
    return office::ContinueOnFailure().attempt(
        [&] { static_cast<void>(session().SessionDocument.get("Name").toText()); });
}

void DialogWord::ContinueOk_Click() {
    if (!documentIsThere()) {
        // With another one open the user sees its name ahead of the next click.
        if (AttachWord(session()))
            announce(catalogue::CountTakenRows(session(), list_, {}));
        else
            SetPanelMessage(noWord, "warning");
        return;
    }
    if (session::refusesAsReadOnly(session(), session().SessionDocument, "document")) return;
    panels::RunExport(session(), *this, taken_, [this] { runBatch(); });
}

void DialogWord::runBatch() {
    constexpr std::uint32_t settledMs = 100;
    catalogue::NeededDocuments needed(session());
    needed.addTarget("Word.Application", "document", session().SessionDocument);
    const WalkResult result = walkAndTell(session(), list_, needed, [&](RowBatch& batch) {
        const WalkResult walk = ExportRowsToWord(batch, choices_.format,
                                                 {.sameWidth = SameWidth.isChecked(),
                                                  .caption = AddCaption.isChecked(),
                                                  .shadow = CheckShadow.isChecked()});
        session::SleepMilliseconds(session(), settledMs);
        return walk;
    });
    if (pdfIsWanted_ && !result.wasCancelled() && documentIsThere())
        ExportActiveDocumentToPdf(session());
    office::ContinueOnFailure().attempt([&] { session().SessionDocument.call("Activate"); });
}

void StartWordExport(session::OfficeSession& session, forms::Desktop& desktop,
                     catalogue::ExportList& list, const catalogue::ExportChoices& choices) {
    if (!AttachWord(session)) {
        session::ShowWarningNotice(session.notices, "The action requires an open Word document");
        return;
    }
    DialogWord dialog(desktop, session, list, choices);
    panels::ShowToolForm(dialog);
}

}  // namespace destinations
