#pragma once

#include "office/copied.h"
#include "office/package/document/file_document.h"

namespace office::package {

/// Puts what was copied in at the caret of a document, in one of its forms. `Failure` 1004 if it
/// can't be had in this form; then nothing is put there.
void pasteInto(FileDocument& document, const Copied& copied, PasteAs as, word::Anchoring anchoring);

/// Does the same with the picture of a file, in a line. `Failure` as `readPicture` has it.
void addPictureTo(FileDocument& document, const std::string& file);

}  // namespace office::package
