#pragma once

#include <com/sun/star/text/XTextCursor.hpp>

#include "office/libreoffice/uno_values.h"
#include "office/model/word/text_document.h"

namespace libreoffice::word {

/// Whether the letters of a paragraph may have looks of their own.
enum class Letters { MayBeDressed, ArePlain };

/// Changes the paragraph that a cursor is in. `office::Failure` 5 for a style that is not known.
void changeParagraph(const uno::Reference<css::text::XTextCursor>& paragraph,
                     const office::model::word::ParagraphChange& change,
                     Letters letters = Letters::MayBeDressed);

}  // namespace libreoffice::word
