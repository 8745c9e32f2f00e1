#pragma once

#include <string>
#include <string_view>

#include "session/office_session.h"

/// Where the PDFs of a session go, and what shows them.
namespace destinations {

/// A folder that files can be written to and that outlives this process: below the temporary one
/// that the environment names, or else "Documents/Temp" at home. Made if need be.
[[nodiscard]] std::string PickWritableTempFolder(session::OfficeSession& session,
                                                 std::string_view subFolder);

/// "Report_20260131_090507.pdf" in that folder.
[[nodiscard]] std::string pdfPath(session::OfficeSession& session, std::string_view baseName);

/// Waits up to 3 seconds for the file and opens it. False if it isn't there or nothing opens it.
bool OpenPdfFile(session::OfficeSession& session, const std::string& path);

/// Makes a PDF of the session's document and opens it. Notices tell what is missing.
void ExportActiveDocumentToPdf(session::OfficeSession& session);

}  // namespace destinations
