#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "office/failure.h"
#include "session/office_session.h"

/// What the exports to slides do with PowerPoint before their own work. Nothing here tells the user
/// anything.
namespace session {

/// Takes the running PowerPoint, or leaves `PowerPointApp` empty. Sets `PowerPointFound`.
void AttachPowerPoint(OfficeSession& session);

/// The window of the session's presentation. Failures go to the caller.
[[nodiscard]] office::Object PresentationWindow(const OfficeSession& session);

/// Brings that window to the front, by its caption. Nothing moves where there is none.
void RaisePresentation(OfficeSession& session);

/// Ahead of a batch: an empty clipboard and no running show. Returns the view type, 0 if it can't
/// be read, and leaves it alone, since a batch works in whatever view the user has. Failures are
/// passed over.
std::int32_t PrepareSlideView(OfficeSession& session);

/// Ahead of a paste of the selection: an empty clipboard, no running show, and normal view. Returns
/// the view type found, 0 if it can't be read. Failures are passed over.
std::int32_t ExitShowNormalView(OfficeSession& session);

/// Gives a window back the view that one of the two has found. Failures of that are passed over. A
/// suite that draws pictures while it goes on has them all on their slides by then, or tells of one
/// that failed: that failure is returned.
[[nodiscard]] std::optional<office::Failure> PutBackView(const office::Object& window,
                                                         std::int32_t viewType);

enum class ExcelWindow : std::int32_t { Normal = -4143, Maximised = -4137 };

void SetExcelWindow(OfficeSession& session, ExcelWindow state);

/// Shows the window of this caption and gives it the foreground. False, and nothing has moved, if
/// there is none.
bool BringWindowToFront(OfficeSession& session, std::string_view caption);

/// What stands in the last-failure record when the lock could not be taken. Nobody is told: without
/// a lock PowerPoint merely redraws while a shape is moved.
enum class LockFailure : std::int32_t {
    NoWindow = static_cast<std::int32_t>(0x80040000U + 1000U),
    NotLocked = static_cast<std::int32_t>(0x80040000U + 1001U),
    NewerVersion = static_cast<std::int32_t>(0x80040000U + 1002U),
};

/// Freezes the drawing of PowerPoint's top window, or thaws it with `release`. Returns the last
/// failure; there is no need to look at it.
std::optional<office::Failure> PowerPointWindowLock(OfficeSession& session, bool release);

/// Holds the lock while it lives.
class PowerPointWindowLockScope {
public:
    explicit PowerPointWindowLockScope(OfficeSession& session) : session_(session) {
        PowerPointWindowLock(session_, false);
    }
    /// A lost application has no window left to thaw.
    ~PowerPointWindowLockScope();
    PowerPointWindowLockScope(const PowerPointWindowLockScope&) = delete;
    PowerPointWindowLockScope& operator=(const PowerPointWindowLockScope&) = delete;

private:
    OfficeSession& session_;
};

}  // namespace session
