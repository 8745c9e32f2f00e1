#pragma once

#include "office/model/model_object.h"
#include "office/model/word/text_document.h"

/// The classes of Word's object model, made here and reached by their members only.
namespace office::model::word {

[[nodiscard]] Object applicationObject(GuardPtr guard, TextDocumentsPtr documents);

}  // namespace office::model::word
