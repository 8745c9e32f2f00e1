#include "desktop/forms_runner.h"

#include "desktop/desktop_application.h"
#include "desktop/qt_desktop.h"

namespace desktop {

struct FormsRunner::Parts {
    Parts(int argumentCount, char** arguments) : application(argumentCount, arguments) {}

    DesktopApplication application;
    QtDesktop desktop;
};

FormsRunner::FormsRunner(int argumentCount, char** arguments)
    : parts_(std::make_unique<Parts>(argumentCount, arguments)) {}

FormsRunner::~FormsRunner() = default;

forms::Desktop& FormsRunner::desktop() {
    return parts_->desktop;
}

void FormsRunner::runWhile(const std::function<bool()>& isOpen) {
    while (isOpen()) parts_->desktop.waitForEvents();
}

}  // namespace desktop
