#pragma once

#include <cstdint>
#include <string_view>

#include "session/office_session.h"

namespace session {

enum class ExcelWindow : std::int32_t { Normal = -4143, Maximised = -4137 };

void SetExcelWindow(OfficeSession& session, ExcelWindow state);

/// The top window with this caption; an empty class name means any class. 0 if there is none.
[[nodiscard]] office::WindowHandle FindWindowByCaption(OfficeSession& session,
                                                       std::string_view caption,
                                                       std::string_view className);

/// Shows a window by a show command (1 is normal) and gives it the foreground. A `window` of 0 is
/// looked up by its caption and stored. False, and nothing has moved, if there is no such window.
bool BringWindowToFront(OfficeSession& session, std::string_view caption,
                        office::WindowHandle& window, int showCommand);

}  // namespace session
