#pragma once

#include <com/sun/star/text/XTextCursor.hpp>

#include "office/libreoffice/uno_values.h"
#include "office/model/word/text_document.h"

namespace libreoffice::word {

/// Changes the paragraph that a cursor is in. `office::Failure` 5 for a style that is not known.
void changeParagraph(const uno::Reference<css::text::XTextCursor>& paragraph,
                     const office::model::word::ParagraphChange& change);

}  // namespace libreoffice::word
