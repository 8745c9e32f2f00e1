#pragma once

#include <string>

#include "catalogue/export_list.h"
#include "session/office_session.h"

namespace destinations {

/// The bytes of a PNG file that shows what was copied last. `office::Failure` 1004 if nothing was
/// that can be seen.
[[nodiscard]] std::string copiedPicture(session::OfficeSession& session);

/// The same of a row's object, which is copied first. Never the picture of an earlier one: what was
/// copied before goes ahead of the copy.
[[nodiscard]] std::string pictureOfRow(session::OfficeSession& session,
                                       const catalogue::ExportItem& row);

}  // namespace destinations
