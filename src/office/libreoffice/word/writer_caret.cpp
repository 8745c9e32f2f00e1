#include "office/libreoffice/word/writer_caret.h"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/text/XTextSection.hpp>
#include <com/sun/star/text/XTextTableCursor.hpp>
#include <com/sun/star/text/XTextViewCursorSupplier.hpp>
#include <com/sun/star/view/XLineCursor.hpp>

#include <utility>

#include "office/failure.h"

namespace libreoffice::word {

using office::refuse;

WriterCaret::WriterCaret(uno::Reference<css::frame::XModel> document)
    : document_(std::move(document)) {}

void WriterCaret::keepView() {
    attach();
    keepsView_ = true;
    textAtEnd_ = cursor_->getText();
    const auto cursor = textAtEnd_->createTextCursorByRange(range_);
    cursorAtEnd_ = {cursor, as<css::text::XParagraphCursor>(cursor),
                    as<css::beans::XMultiPropertySet>(cursor),
                    as<css::beans::XMultiPropertyStates>(cursor)};
}

void WriterCaret::attach() {
    if (keepsView_) return;
    auto current = document_->getCurrentController();
    if (!current.is()) refuse("Selection", "The document has no window");
    if (current.get() == controller_.get()) return;
    controller_ = std::move(current);
    selection_ = as<css::view::XSelectionSupplier>(controller_);
    cursor_ = as<css::text::XTextViewCursorSupplier>(controller_)->getViewCursor();
    range_.set(cursor_.get());
    lines_ = as<css::view::XViewCursor>(cursor_);
}

uno::Reference<css::text::XText> WriterCaret::text() {
    if (isAtEnd()) return textAtEnd_;
    attach();
    try {
        return cursor_->getText();
    } catch (const uno::RuntimeException&) {
        // Without text selected the cursor answers no question.
        leaveObject();
    }
    return cursor_->getText();
}

const RangeRef& WriterCaret::range() {
    static_cast<void>(text());
    return range_;
}

uno::Reference<css::text::XTextCursor> WriterCaret::copy() {
    // What is written at the end moves all cursors there on.
    return isAtEnd() ? cursorAtEnd_.cursor : text()->createTextCursorByRange(range_);
}

void WriterCaret::leaveObject() {
    const uno::Any selected = selection_->getSelection();
    if (uno::Reference<css::text::XTextTableCursor>(selected, uno::UNO_QUERY).is())
        refuse("Selection", "Several cells of a table are selected");
    uno::Reference<css::text::XTextContent> object(selected, uno::UNO_QUERY);
    if (const uno::Reference<css::container::XIndexAccess> shapes(selected, uno::UNO_QUERY);
        !object.is() && shapes.is() && shapes->getCount() > 0)
        object.set(shapes->getByIndex(0), uno::UNO_QUERY);
    const auto anchor = object.is() ? object->getAnchor() : nullptr;
    if (!anchor.is()) refuse("Selection", "The caret stands in no text");
    selection_->select(uno::Any(anchor->getEnd()));
}

void WriterCaret::goTo(const RangeRef& place) {
    attach();
    textAtEnd_.clear();
    // Moving the cursor alone leaves an object selected.
    selection_->select(uno::Any(place));
}

void WriterCaret::goDown(std::int32_t lines) {
    static_cast<void>(range());
    textAtEnd_.clear();
    for (std::int32_t line = 0; line < lines; ++line) {
        if (lines_->goDown(1, false)) continue;
        cursor_->gotoEnd(false);
        return;
    }
}

void WriterCaret::goToStartOfLine() {
    static_cast<void>(range());
    textAtEnd_.clear();
    as<css::view::XLineCursor>(cursor_)->gotoStartOfLine(false);
}

rtl::OUString WriterCaret::pageStyle() {
    attach();
    return property<rtl::OUString>(cursor_, "PageStyleName");
}

void WriterCaret::select(const uno::Reference<css::text::XTextContent>& object) {
    attach();
    textAtEnd_.clear();
    selection_->select(uno::Any(object));
}

uno::Reference<css::text::XTextContent> WriterCaret::selectedContent() {
    attach();
    return {selection_->getSelection(), uno::UNO_QUERY};
}

void requireWritable(const uno::Reference<css::beans::XMultiPropertySet>& place,
                     const std::string& member) {
    constexpr const char* isProtected = "IsProtected";
    const NamedValues around(place, {"Cell", "TextFrame", "TextSection"});
    const auto cell = around.get<uno::Reference<uno::XInterface>>("Cell");
    if (cell.is() && property<bool>(cell, isProtected))
        refuse(member, "This cell of the table is protected");
    const auto frame = around.get<uno::Reference<uno::XInterface>>("TextFrame");
    if (frame.is() && property<bool>(frame, "ContentProtected"))
        refuse(member, "This frame is protected");
    auto section = around.get<uno::Reference<css::text::XTextSection>>("TextSection");
    for (; section.is(); section = section->getParentSection()) {
        if (property<bool>(section, isProtected))
            refuse(member, "This part of the document is protected");
    }
}

}  // namespace libreoffice::word
