#include "desktop/forms_runner.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string>

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

void FormsRunner::closeForms() {
    parts_->desktop.closeForms();
}

namespace {

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

bool xServerAnswers() {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0;
}

bool socketAnswers(const std::string& path) {
    sockaddr_un address{};
    if (path.size() >= sizeof address.sun_path) return false;
    address.sun_family = AF_UNIX;
    path.copy(static_cast<char*>(address.sun_path), path.size());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket < 0) return false;
    const bool answers =
        ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(socket);
    return answers;
}

bool waylandAnswers(const std::string& display) {
    const bool isPath = display.front() == '/';
    return socketAnswers(isPath ? display : variable("XDG_RUNTIME_DIR") + "/" + display);
}

}  // namespace

bool screenAnswers() {
    const std::string platform = variable("QT_QPA_PLATFORM");
    if (!platform.empty() && !platform.starts_with("xcb") && !platform.starts_with("wayland")) {
        return true;  // one without a screen, asked for by name
    }
    if (!variable("DISPLAY").empty() && xServerAnswers()) return true;
    const std::string wayland = variable("WAYLAND_DISPLAY");
    return !wayland.empty() && waylandAnswers(wayland);
}

}  // namespace desktop
