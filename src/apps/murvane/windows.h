#pragma once

#include <memory>
#include <string_view>

#include "apps/posix_host.h"
#include "catalogue/userform_obj.h"
#include "forms/desktop.h"
#include "panels/powerpoint_dialog.h"
#include "powerpoint/layout_form.h"
#include "powerpoint/picture_styles_form.h"
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

/// The forms of the program, each made when a command first wants it, and what leads from one to
/// the other.
class Windows {
public:
    Windows(forms::Desktop& desktop, session::OfficeSession& session);
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    /// What the commands run that opens windows.
    [[nodiscard]] session::CommandHandlers handlers();

private:
    void showMainForm();
    void showPowerPointDialog();
    bool insertOneItem(const catalogue::ExportItem& row);
    [[nodiscard]] catalogue::MainFormHooks mainFormHooks();
    [[nodiscard]] panels::PowerPointDialogLinks dialogLinks();

    forms::Desktop& desktop_;
    session::OfficeSession& session_;
    session::FormHooks formHooks_;
    std::unique_ptr<catalogue::UserformObj> mainForm_;
    std::unique_ptr<powerpoint::PredefinedStyles> styles_;
    std::unique_ptr<powerpoint::LayoutForm> layout_;
    std::unique_ptr<panels::Dialog> dialog_;
};

}  // namespace apps
