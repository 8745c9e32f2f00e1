#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "catalogue/export_choices.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/web_browser.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"
#include "panels/action_panel.h"
#include "session/office_session.h"

namespace catalogue {

/// What the options dialogs of all destinations have in common: the last stop ahead of an export,
/// which says what is about to happen, offers the options, and has the button that leads on. The
/// options live in hidden controls; the page is composed from them after every click.
class ExportDialog : public forms::Form {
public:
    /// Shows a message in the panel and keeps it for the renders to come.
    void SetPanelMessage(std::string message, std::string kind);
    /// True if the navigation is one of the panel's links, which then has been followed here.
    bool wbStatus_BeforeNavigate2(std::string_view url);

    virtual void ContinueOk_Click() = 0;
    /// Flips an option; nothing for an unknown key.
    virtual void ToggleOption(std::string_view key) = 0;
    /// Takes one of a group of choices; nothing for an unknown one.
    virtual void SelectChoice(std::string_view /*group*/, std::string_view /*key*/) {}
    /// Runs a tool; nothing for an unknown key.
    virtual void RunPanelAction(std::string_view /*key*/) {}

    furniture::TitleBar TitelBar1;
    forms::Image Image1;
    forms::WebBrowser wbStatus;
    forms::Label lblActionBar;
    forms::Label lblActionBorder;
    forms::CommandButton ContinueOk;

protected:
    /// `destinationWord` is what the panel calls the destination, `drawing` its picture.
    ExportDialog(forms::Desktop& desktop, session::OfficeSession& session, ExportList& list,
                 ExportChoices choices, std::string name, std::string destinationWord,
                 std::string drawing);

    [[nodiscard]] session::OfficeSession& session() { return session_; }

    /// The options below the message, and the tools above them: finished markup, or empty.
    [[nodiscard]] virtual std::string BuildOptionsMarkup() const = 0;
    [[nodiscard]] virtual std::string BuildToolsMarkup() const { return {}; }

    /// How many rows are taken, and where they will go. A failure leaves the message as it is.
    [[nodiscard]] virtual std::string announcement() = 0;

    /// The beginning of a `Form_Load`.
    void beginForm();
    /// Its end: the panel is laid out and shown.
    void showPanel();
    void RenderPanel();
    /// Shows the announcement of so many rows. Of none there is nothing to export, and the button
    /// leads nowhere.
    void announce(std::int32_t taken);
    /// One of the page's rows, as its hidden box has it.
    [[nodiscard]] static std::string optionRow(std::string_view key, const forms::CheckBox& box);
    static void flip(forms::CheckBox& box);

    ExportList& list_;
    ExportChoices choices_;
    std::int32_t taken_ = 0;

private:
    [[nodiscard]] panels::ActionBar actionBar();

    session::OfficeSession& session_;
    std::string destinationWord_;
    std::string message_;
    std::string kind_;
    std::optional<furniture::clsShadow> shadow_;
};

}  // namespace catalogue
