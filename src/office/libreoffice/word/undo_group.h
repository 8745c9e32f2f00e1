#pragma once

#include <com/sun/star/document/XUndoManager.hpp>

#include <utility>

#include "office/libreoffice/at_end.h"

namespace libreoffice::word {

/// What is done during the life of this object, the user takes back by one step of the menu. A
/// document whose steps nobody counts has none.
class UndoGroup {
public:
    UndoGroup(uno::Reference<css::document::XUndoManager> steps, const char* title)
        : steps_(std::move(steps)) {
        if (steps_.is()) steps_->enterUndoContext(rtl::OUString::createFromAscii(title));
    }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;
    ~UndoGroup() {
        if (steps_.is()) asFarAsPossible([&] { steps_->leaveUndoContext(); });
    }

private:
    uno::Reference<css::document::XUndoManager> steps_;
};

}  // namespace libreoffice::word
