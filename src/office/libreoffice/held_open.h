#pragma once

#include <memory>

#include "office/held_document.h"
#include "office/libreoffice/connection.h"
#include "office/libreoffice/document.h"

namespace libreoffice {

/// Keeps a document of the user's suite open, with the window that it is in.
///
/// A text that goes under a call takes the whole suite with it, and with that everything that is
/// open there. The suite has put its question about unsaved changes by the time that it asks
/// whether a window may close, and never puts it again: so the window is closed in the end. Should
/// this process die, the suite asks it no more. `hasClosed` is set if it was closed in the end.
[[nodiscard]] std::unique_ptr<office::HeldDocument> heldOpen(std::shared_ptr<Connection> connection,
                                                             const Document& document,
                                                             std::shared_ptr<bool> hasClosed);

}  // namespace libreoffice
