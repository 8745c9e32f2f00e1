#include "session/window_helpers.h"

namespace session {

void SetExcelWindow(OfficeSession& session, ExcelWindow state) {
    session.ExcelApp.put("WindowState", static_cast<std::int32_t>(state));
}

office::WindowHandle FindWindowByCaption(OfficeSession& session, std::string_view caption,
                                         std::string_view className) {
    return session.suite.findWindow(className, caption);
}

bool BringWindowToFront(OfficeSession& session, std::string_view caption,
                        office::WindowHandle& window, int showCommand) {
    if (window == 0) window = FindWindowByCaption(session, caption, {});
    if (window == 0) return false;
    return session.suite.raiseWindow(window, showCommand);
}

}  // namespace session
