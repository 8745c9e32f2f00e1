#pragma once

#include <string>

#include "catalogue/export_choices.h"
#include "session/office_session.h"

/// Picture files of what rows stand for, in the session's kind of pictures.
namespace catalogue {

/// A name for the row's file in the temporary folder. All chart sheets share one.
[[nodiscard]] std::string TemporaryPictureOf(session::OfficeSession& session,
                                             const ExportItem& row);

/// Has Excel write the row's picture to a file. False if the row leads to no range. Failures go to
/// the caller.
[[nodiscard]] bool ExportRowPicture(session::OfficeSession& session, const ExportItem& row,
                                    const std::string& file);

}  // namespace catalogue
