#pragma once

#include <string>
#include <vector>

#include "session/launcher.h"

namespace session_tests {

/// Handlers of all commands; each notes that it ran. The main form closes at once.
struct CommandRecorder {
    explicit CommandRecorder(session::OfficeSession& theSession) : session(theSession) {
        handlers.CountWorkbookItems = [this] {
            ran.emplace_back("count");
            session.ItemCount = itemsToCount;
        };
        handlers.ShowAboutForm = [this] { ran.emplace_back("about"); };
        handlers.ShowLayoutUtility = [this] { ran.emplace_back("layout"); };
        handlers.ShowMainForm = [this] {
            ran.emplace_back("main form");
            session.MainFormOpen = false;
        };
        handlers.PasteSelectionToSlide = [this](session::SlidePaste mode) {
            ran.push_back("slide " + std::to_string(static_cast<int>(mode)));
        };
        handlers.PasteSelectionToWord = [this](session::WordPaste mode) {
            ran.push_back("word " + std::to_string(static_cast<int>(mode)));
        };
        handlers.SaveSelectionAsImage = [this] { ran.emplace_back("image"); };
        handlers.UnloadAllForms = [this] { ran.emplace_back("unload all"); };
    }

    CommandRecorder(const CommandRecorder&) = delete;
    CommandRecorder& operator=(const CommandRecorder&) = delete;

    session::OfficeSession& session;
    session::CommandHandlers handlers;
    std::vector<std::string> ran;
    std::int16_t itemsToCount = 1;
};

}  // namespace session_tests
