#pragma once

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/beans/XMultiPropertyStates.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/text/XParagraphCursor.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextContent.hpp>
#include <com/sun/star/text/XTextViewCursor.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>
#include <com/sun/star/view/XViewCursor.hpp>

#include <cstdint>
#include <string>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::word {

using RangeRef = uno::Reference<css::text::XTextRange>;

/// The caret in a document's view, or what is selected there. A document that was opened without a
/// window has a view too, unseen.
class WriterCaret {
public:
    explicit WriterCaret(uno::Reference<css::frame::XModel> document);

    /// Says that the view is that of a new document which nobody else sees or writes in, and stays
    /// the same.
    void keepView();
    /// Whether it is known, without asking, to stand behind all text with nothing selected: in a
    /// view that is kept, as long as it has only been written at.
    [[nodiscard]] bool isAtEnd() const { return textAtEnd_.is(); }

    /// What is selected of the text, or the place of the caret. An object that is selected is let
    /// go, and the caret stands behind it then. `office::Failure` 1004 while several cells of a
    /// table are selected, or without a view.
    [[nodiscard]] const RangeRef& range();
    /// The same where nothing has happened since `text` or `copy`, without asking once more.
    [[nodiscard]] const RangeRef& sameRange() const { return range_; }
    /// The text that the caret is in: the document's own, or that of a cell, a frame, a header.
    [[nodiscard]] uno::Reference<css::text::XText> text();
    /// A cursor in the same place, which tells and takes several properties in one call. It may
    /// move with the next one that is asked for.
    [[nodiscard]] uno::Reference<css::text::XTextCursor> copy();

    void goTo(const RangeRef& place);
    void goDown(std::int32_t lines);
    void goToStartOfLine();
    /// The name of the page style that counts there.
    [[nodiscard]] rtl::OUString pageStyle();

    /// An object in the text instead of the text.
    void select(const uno::Reference<css::text::XTextContent>& object);
    /// What alone is selected, if it is no text; else an empty reference.
    [[nodiscard]] uno::Reference<css::text::XTextContent> selectedContent();

private:
    /// A cursor and what it is asked for, held together: to ask anew takes a call each.
    struct HeldCursor {
        uno::Reference<css::text::XTextCursor> cursor;
        uno::Reference<css::text::XParagraphCursor> paragraph;
        uno::Reference<css::beans::XMultiPropertySet> properties;
        uno::Reference<css::beans::XMultiPropertyStates> states;
    };

    void attach();
    void leaveObject();

    uno::Reference<css::frame::XModel> document_;
    bool keepsView_ = false;
    uno::Reference<css::frame::XController> controller_;
    uno::Reference<css::view::XSelectionSupplier> selection_;
    uno::Reference<css::text::XTextViewCursor> cursor_;
    /// The same.
    RangeRef range_;
    uno::Reference<css::view::XViewCursor> lines_;
    /// The document's own text, while the caret is at its end.
    uno::Reference<css::text::XText> textAtEnd_;
    HeldCursor cursorAtEnd_;
};

/// `office::Failure` 1004 if nobody may write at a place of a text: a protected section, a
/// protected cell.
void requireWritable(const uno::Reference<css::beans::XMultiPropertySet>& place,
                     const std::string& member);

}  // namespace libreoffice::word
