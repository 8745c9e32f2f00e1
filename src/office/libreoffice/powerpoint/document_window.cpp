#include "office/libreoffice/powerpoint/document_window.h"

#include <utility>

#include "office/libreoffice/powerpoint/presentation.h"
#include "office/libreoffice/powerpoint/selection.h"
#include "office/libreoffice/powerpoint/view.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

DocumentWindow::DocumentWindow(DeskPtr desk, ImpressDocumentPtr document)
    : UnoObject(std::move(desk), document),
      document_(std::move(document)) {}

const office::MemberTable<DocumentWindow>& DocumentWindow::members() {
    static const auto table =
        office::MemberTable<DocumentWindow>("DocumentWindow")
            .property("Caption", &DocumentWindow::caption)
            .property("ViewType", &DocumentWindow::viewType, &DocumentWindow::setViewType)
            .property("View", &DocumentWindow::view)
            .property("Selection", &DocumentWindow::selection)
            .property("Presentation", &DocumentWindow::presentation)
            .method("Activate", {}, &DocumentWindow::activate);
    return table;
}

Value DocumentWindow::caption() {
    return document_->name() + " - PowerPoint";
}

Value DocumentWindow::viewType() {
    return document_->window().viewType(desk().connection());
}

void DocumentWindow::setViewType(const Value& viewType) {
    document_->window().setViewType(desk().connection(), viewType.toLong());
}

Value DocumentWindow::view() {
    return makeObject<View>(deskPtr(), document_);
}

Value DocumentWindow::selection() {
    return makeObject<Selection>(deskPtr(), document_);
}

Value DocumentWindow::presentation() {
    return makeObject<Presentation>(deskPtr(), document_);
}

Value DocumentWindow::activate(const CallArguments& /*arguments*/) {
    desk().setActive(document_);
    document_->raise();
    return {};
}

}  // namespace libreoffice::powerpoint
