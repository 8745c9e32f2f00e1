#pragma once

#include <string>

namespace libreoffice::powerpoint {

class ImpressDocument;

/// Writes a copy of a presentation in the format of the file's ending: .pptx, .odp, .pdf, .ppt. The
/// presentation keeps its own file, name and state. `office::Failure` 5 for another ending, 1004
/// with the reason if the file does not come about.
void saveCopy(ImpressDocument& document, const std::string& path);

/// The same, and from then on it is the presentation's own file. Not for .pdf.
void saveUnderNewName(ImpressDocument& document, const std::string& path);

}  // namespace libreoffice::powerpoint
