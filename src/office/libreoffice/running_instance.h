#pragma once

#include <memory>

namespace libreoffice {

class Connection;

/// Connects to the suite that the user runs. Null if none runs. One that was started without a
/// listening pipe is asked for one through its own launcher, which hands the wish over and ends at
/// once. `office::Failure` if it runs and does not answer.
[[nodiscard]] std::shared_ptr<Connection> connectToRunning();

}  // namespace libreoffice
