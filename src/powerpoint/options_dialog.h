#pragma once

#include <string>
#include <string_view>

#include "catalogue/export_dialog.h"
#include "forms/controls.h"
#include "powerpoint/batch_frame.h"
#include "session/office_session.h"

namespace powerpoint {

/// The options dialog of the export to slides. The presentation that it names is the one that the
/// batch goes to.
class Dialog : public catalogue::ExportDialog {
public:
    Dialog(forms::Desktop& desktop, session::OfficeSession& session, catalogue::ExportList& list,
           const catalogue::ExportChoices& choices);

    void Form_Load() override;

    /// Runs the export and ends the session. A failure of the batch goes to the caller.
    void ContinueOk_Click() override;
    /// Flips an option, if it is enabled.
    void ToggleOption(std::string_view key) override;
    /// Opens a tool form.
    void RunPanelAction(std::string_view key) override;

    forms::Frame Frame3;
    forms::CheckBox SlideTitle;
    forms::CheckBox SourceInc;
    forms::CheckBox CheckShadow;

protected:
    [[nodiscard]] std::string BuildOptionsMarkup() const override;
    [[nodiscard]] std::string BuildToolsMarkup() const override;
    [[nodiscard]] std::string announcement() override;

private:
    bool findsPresentation();
    void announcePresentation();
    void runBatch(catalogue::FailedItems& failed);
    [[nodiscard]] bool presentationIsThere();
    [[nodiscard]] bool slideNumbersFit();
    [[nodiscard]] forms::CheckBox* optionOf(std::string_view key);

    SlideOptions options_;
};

/// Begins an export to slides: the dialog comes up. Excel asks nothing meanwhile.
void StartPowerPointExport(session::OfficeSession& session, forms::Desktop& desktop,
                           catalogue::ExportList& list, const catalogue::ExportChoices& choices);

}  // namespace powerpoint
