#pragma once

#include "office/libreoffice/at_end.h"
#include "office/libreoffice/excel/calc_document.h"

namespace libreoffice::excel {

/// What is written into a workbook during the life of this object becomes no step of its Undo menu:
/// the user's own last step stays the next one, and what can be redone can still be. One for each
/// call that writes, since LibreOffice ends it within the call that adds a sheet.
class Unrecorded {
public:
    explicit Unrecorded(CalcDocument& book) : steps_(book.undoSteps()) {
        if (steps_.is()) steps_->lock();
    }
    Unrecorded(const Unrecorded&) = delete;
    Unrecorded& operator=(const Unrecorded&) = delete;
    ~Unrecorded() {
        asFarAsPossible([this] {
            if (steps_.is()) steps_->unlock();
        });
    }

private:
    uno::Reference<css::document::XUndoManager> steps_;
};

}  // namespace libreoffice::excel
