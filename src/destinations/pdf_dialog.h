#pragma once

#include <string>
#include <string_view>

#include "catalogue/export_list.h"
#include "destinations/pdf_run.h"
#include "panels/options_form.h"

namespace destinations {

/// The options dialog of the export to PDF. It stays open after a run, for another one.
class DialogPDF : public panels::OptionsForm {
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

private:
    void readFields();
    [[nodiscard]] PdfOptions options();

    catalogue::ExportList& list_;
    catalogue::ExportChoices choices_;
    std::int32_t taken_ = 0;
};

void StartPdfExport(session::OfficeSession& session, forms::Desktop& desktop,
                    catalogue::ExportList& list, const catalogue::ExportChoices& choices);

}  // namespace destinations
