#pragma once

#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/frame/XModel.hpp>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::word {

/// What is done during the life of this object, the user takes back by one step of the menu.
class UndoGroup {
public:
    UndoGroup(const uno::Reference<css::frame::XModel>& document, const char* title)
        : steps_(as<css::document::XUndoManagerSupplier>(document)->getUndoManager()) {
        steps_->enterUndoContext(rtl::OUString::createFromAscii(title));
    }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;
    ~UndoGroup() {
        try {
            steps_->leaveUndoContext();
        } catch (const uno::Exception&) {
            // The document or the suite has gone, and its steps with it.
        }
    }

private:
    uno::Reference<css::document::XUndoManager> steps_;
};

}  // namespace libreoffice::word
