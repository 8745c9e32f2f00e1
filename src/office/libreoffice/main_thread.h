#pragma once

#include <functional>

#include "office/libreoffice/connection.h"

namespace libreoffice {

/// Does something while the suite's main thread waits for it, and waits until it is done. The calls
/// to the suite that the task makes are carried out by that thread. Throws what the task throws,
/// and `css::uno::Exception` if the suite is lost meanwhile.
///
/// For what heeds the suite's lock too late: a font lays its characters out without it, which
/// crashes a suite that draws a text of its own meanwhile; an embedded object takes its own lock
/// first, which stops a suite for good that lays its text out.
///
/// What the task refers to has to last as long as the task itself: after a lost connection that is
/// longer than the call. So has what the suite hands out to it: the suite's bridge would let go of
/// that, and wait for the lock that the main thread holds, while this waits for the bridge.
void onMainThread(const Connection& connection, std::function<void()> task);

}  // namespace libreoffice
