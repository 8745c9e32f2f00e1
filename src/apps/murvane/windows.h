#pragma once

#include <memory>
#include <string_view>

#include "apps/posix_host.h"
#include "catalogue/userform_obj.h"
#include "forms/desktop.h"
#include "session/launcher.h"
#include "session/office_session.h"

namespace apps {

/// The machine of a program with windows: events come from its desktop, and so does the plain box.
class DesktopHost : public PosixHost {
public:
    DesktopHost(Console& console, forms::Desktop& desktop)
        : PosixHost(console),
          desktop_(desktop) {}

    void letEventsRun() override { desktop_.letEventsRun(); }
    void messageBox(std::string_view text, std::string_view title) override {
        desktop_.messageBox(text, title);
    }

private:
    forms::Desktop& desktop_;
};

/// The forms of the program, and what leads from one to the other.
class Windows {
public:
    Windows(forms::Desktop& desktop, session::OfficeSession& session)
        : desktop_(desktop),
          session_(session) {}

    /// What the commands run that opens windows.
    [[nodiscard]] session::CommandHandlers handlers();

private:
    void showMainForm();

    forms::Desktop& desktop_;
    session::OfficeSession& session_;
    std::unique_ptr<catalogue::UserformObj> mainForm_;
};

}  // namespace apps
