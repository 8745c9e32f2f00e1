#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "catalogue/export_list.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/web_browser.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"
#include "office/failure_patterns.h"
#include "panels/action_panel.h"
#include "powerpoint/batch_frame.h"
#include "session/office_session.h"

namespace powerpoint {

/// The last stop ahead of a batch export to PowerPoint: says what is about to happen, offers the
/// options, and runs the batch. The options live in hidden check boxes; the page is composed from
/// them after every click. The presentation that it names is the one that the batch goes to.
class Dialog : public forms::Form {
public:
    Dialog(forms::Desktop& desktop, session::OfficeSession& session, catalogue::ExportList& list,
           const catalogue::ExportChoices& choices);

    void Form_Load() override;

    /// Shows a message in the panel and keeps it for the renders to come.
    void SetPanelMessage(std::string message, std::string kind);
    /// Runs the export and ends the session. A failure of the batch goes to the caller.
    void ContinueOk_Click();
    /// True if the navigation is one of the panel's links, which then has been followed here.
    bool wbStatus_BeforeNavigate2(std::string_view url);
    /// Flips an option, if it is enabled; nothing for an unknown key.
    void ToggleOption(std::string_view key);
    /// Opens a tool form; nothing for an unknown key.
    void RunPanelAction(std::string_view key);

    furniture::TitleBar TitelBar1;
    forms::Image Image1;
    forms::Label Label7;
    forms::Frame Frame3;
    forms::CheckBox SlideTitle;
    forms::CheckBox SourceInc;
    forms::CheckBox CheckShadow;
    forms::CommandButton CreateBlankPPT;
    forms::WebBrowser wbStatus;
    forms::Label lblActionBar;
    forms::Label lblActionBorder;
    forms::Label lblActionCaption;
    forms::CommandButton ContinueOk;

private:
    bool findsPresentation();
    void namePresentation(office::ContinueOnFailure& scope);
    [[nodiscard]] bool presentationIsThere(office::ContinueOnFailure& scope) const;
    [[nodiscard]] bool slideNumbersFit();
    [[nodiscard]] panels::ActionBar actionBar();
    [[nodiscard]] forms::CheckBox* optionOf(std::string_view key);
    [[nodiscard]] std::string BuildOptionsMarkup() const;
    [[nodiscard]] std::string BuildToolsMarkup() const;
    void RenderPanel();

    session::OfficeSession& session_;
    catalogue::ExportList& list_;
    catalogue::ExportChoices choices_;
    SlideOptions options_;
    std::int32_t taken_ = 0;
    std::string message_;
    std::string kind_;
    std::optional<furniture::clsShadow> shadow_;
};

/// Begins an export to slides: Excel asks nothing from here on, and the dialog comes up.
void StartPowerPointExport(session::OfficeSession& session, forms::Desktop& desktop,
                           catalogue::ExportList& list, const catalogue::ExportChoices& choices);

}  // namespace powerpoint
