#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/web_browser.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"
#include "office/failure_patterns.h"
#include "panels/action_bar.h"
#include "session/office_session.h"

namespace panels {

/// What the dialog asks of the main form, and what it sets going in higher layers.
struct PowerPointDialogLinks {
    struct Row {
        bool isChecked = false;
        std::string slideNumber;  ///< as the list shows it; empty for none
    };

    /// `OptionPredefSlides`
    std::function<bool()> predefinedSlides;
    /// `OptionFormat(index)`, 0 to 3
    std::function<bool(int index)> formatIsChosen;
    /// The rows of the list in display order.
    std::function<std::vector<Row>()> rows;
    /// How many rows an export to new slides takes.
    std::function<std::int16_t()> countRowsForExport;
    /// The batch of a format: 0 pictures, 1 editable, 2 embedded, 3 linked. One that this version
    /// hasn't got is left out; the dialog then says so and stays open.
    std::array<std::function<void()>, 4> batches;
    /// `PredefinedStyles` and `LayoutForm`.
    forms::Form* styles = nullptr;
    forms::Form* layout = nullptr;
};

/// The last stop ahead of a batch export to PowerPoint: says what is about to happen, offers the
/// options, and runs the batch. The options live in hidden check boxes; the page is composed from
/// them after every click.
class Dialog : public forms::Form {
public:
    Dialog(forms::Desktop& desktop, session::OfficeSession& session, PowerPointDialogLinks links);

    void Form_Load() override;
    void Form_Unload() override;

    /// Shows a message in the panel and keeps it for the renders to come.
    void SetPanelMessage(std::string message, std::string kind);
    /// Runs the export and ends the session. A failure of the batch goes to the caller.
    void ContinueOk_Click();
    /// True if the navigation is one of the panel's links, which then has been followed here.
    bool wbStatus_BeforeNavigate2(std::string_view url);
    /// Flips an option, if it is enabled; nothing for an unknown key.
    void ToggleOption(std::string_view key);
    /// Opens a tool form; nothing for an unknown key.
    void RunPanelAction(std::string_view key) const;

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
    void startAsDesigned();
    void HideRealControls();
    [[nodiscard]] std::string readFormatName() const;
    bool findsPresentation();
    void showFirstMessage(office::ContinueOnFailure& scope);
    [[nodiscard]] ActionBar actionBar();
    [[nodiscard]] forms::CheckBox* optionOf(std::string_view key);
    [[nodiscard]] std::string BuildOptionsMarkup() const;
    [[nodiscard]] std::string BuildToolsMarkup() const;
    void RenderPanel();
    bool slideNumbersFit(office::ContinueOnFailure& scope);
    void copyOptions();
    [[nodiscard]] bool presentationIsThere(office::ContinueOnFailure& scope);
    void CloseDialogsShowProgress();

    session::OfficeSession& session_;
    PowerPointDialogLinks links_;
    std::string message_;
    std::string kind_;
    std::string FormatName_;
    std::optional<furniture::clsShadow> shadow_;
};

}  // namespace panels
