#pragma once

#include <string>
#include <string_view>

#include "forms/desktop.h"
#include "session/host.h"

namespace panels {

/// The help inside the program: which page belongs where, and the reader that shows it. While it
/// lives, the key for help opens the page of the form that the user is in.
class Help {
public:
    Help(forms::Desktop& desktop, session::Host& host);
    Help(const Help&) = delete;
    Help& operator=(const Help&) = delete;
    ~Help() { desktop_.onHelp = nullptr; }

    /// Shows a page of the help folder, from one of its sections on if that is named; a plain
    /// message box where there is no such file.
    void ShowHelp(std::string_view file, std::string_view section = {});
    /// Shows a file from anywhere as a page of help; one that can't be read is told on the page.
    void ShowHelpPopup(std::string title, std::string filePath, std::string section = {});
    /// Shows the page that belongs to a control of the main form, or else the general one.
    void ShowContextHelp(const forms::Control& control);
    /// Shows the help that a form shows itself, or else the page that belongs to it and to the
    /// control that has the focus there. Nothing happens in the reader itself and in the forms that
    /// show how far something has come.
    void ShowHelpFor(forms::Form& form);

    [[nodiscard]] bool HelpFileExists(std::string_view file);

private:
    [[nodiscard]] std::string pathOf(std::string_view file);

    forms::Desktop& desktop_;
    session::Host& host_;
};

/// The page that belongs to a control of this name; empty if none does.
[[nodiscard]] std::string_view helpFileOf(std::string_view controlName);

}  // namespace panels
