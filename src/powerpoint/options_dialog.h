#pragma once

#include <string>
#include <string_view>

#include "catalogue/export_list.h"
#include "forms/controls.h"
#include "office/failure_patterns.h"
#include "panels/options_form.h"
#include "powerpoint/batch_frame.h"
#include "session/office_session.h"

namespace powerpoint {

/// The options dialog of the export to slides. The presentation that it names is the one that the
/// batch goes to.
class Dialog : public panels::OptionsForm {
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

private:
    bool findsPresentation();
    void namePresentation(office::ContinueOnFailure& scope);
    void runBatch(catalogue::FailedItems& failed);
    [[nodiscard]] bool presentationIsThere(office::ContinueOnFailure& scope);
    [[nodiscard]] bool slideNumbersFit();
    [[nodiscard]] forms::CheckBox* optionOf(std::string_view key);

    catalogue::ExportList& list_;
    catalogue::ExportChoices choices_;
    SlideOptions options_;
    std::int32_t taken_ = 0;
};

/// Begins an export to slides: the dialog comes up. Excel asks nothing meanwhile.
void StartPowerPointExport(session::OfficeSession& session, forms::Desktop& desktop,
                           catalogue::ExportList& list, const catalogue::ExportChoices& choices);

}  // namespace powerpoint
