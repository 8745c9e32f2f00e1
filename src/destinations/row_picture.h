#pragma once

#include "catalogue/export_choices.h"
#include "office/picture.h"
#include "session/office_session.h"

namespace destinations {

/// A picture of what was copied last, which may still be drawn. `office::Failure` 1004 if nothing
/// was that can be seen.
[[nodiscard]] office::Picture copiedPicture(session::OfficeSession& session);

/// The same of a row's object, which is copied first. Never the picture of an earlier one: what was
/// copied before goes ahead of the copy.
[[nodiscard]] office::Picture pictureOfRow(session::OfficeSession& session,
                                           const catalogue::ExportItem& row);

}  // namespace destinations
