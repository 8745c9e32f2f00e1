#pragma once

#include <string>
#include <string_view>

#include "catalogue/export_dialog.h"
#include "destinations/pdf_run.h"

namespace destinations {

/// The options dialog of the export to PDF. It stays open after a run, for another one.
class DialogPDF : public catalogue::ExportDialog {
public:
    DialogPDF(forms::Desktop& desktop, session::OfficeSession& session, catalogue::ExportList& list,
              const catalogue::ExportChoices& choices);

    void Form_Load() override;
    void ContinueOk_Click() override;
    void ToggleOption(std::string_view wanted) override;

    /// Makes the PDF in the temporary folder and opens it if that is wanted.
    void MakeBlankDoc_Paste_ExportPdf_AndClose();

    forms::CheckBox Check3;
    forms::CheckBox Check1;
    forms::CheckBox Check2;
    forms::CheckBox CoverT;
    forms::TextBox txtAmount;
    forms::TextBox CoverText;

protected:
    [[nodiscard]] std::string BuildOptionsMarkup() const override;
    [[nodiscard]] std::string announcement() override;

private:
    void readFields();
    [[nodiscard]] PdfOptions options();
};

void StartPdfExport(session::OfficeSession& session, forms::Desktop& desktop,
                    catalogue::ExportList& list, const catalogue::ExportChoices& choices);

}  // namespace destinations
