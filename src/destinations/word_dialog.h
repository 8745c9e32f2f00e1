#pragma once

#include <string>
#include <string_view>

#include "catalogue/export_dialog.h"
#include "destinations/word_batch.h"

namespace destinations {

/// The options dialog of the export to Word.
class DialogWord : public catalogue::ExportDialog {
public:
    DialogWord(forms::Desktop& desktop, session::OfficeSession& session,
               catalogue::ExportList& list, const catalogue::ExportChoices& choices);

    void Form_Load() override;

    /// Runs the export and ends the session.
    void ContinueOk_Click() override;
    /// Flips an option, if it is enabled.
    void ToggleOption(std::string_view wanted) override;

    forms::CheckBox SameWidth;
    forms::CheckBox AddCaption;
    forms::CheckBox CheckShadow;
    forms::CheckBox PdfOutput;

protected:
    [[nodiscard]] std::string BuildOptionsMarkup() const override;
    [[nodiscard]] std::string announcement() override;

private:
    [[nodiscard]] bool documentIsThere();
    void runBatch();

    /// Once asked for, a PDF is made even if the row is switched off again.
    bool pdfIsWanted_ = false;
};

/// Begins an export to Word: the dialog comes up, or a notice says that there is no document.
void StartWordExport(session::OfficeSession& session, forms::Desktop& desktop,
                     catalogue::ExportList& list, const catalogue::ExportChoices& choices);

}  // namespace destinations
