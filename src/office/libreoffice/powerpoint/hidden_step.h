#pragma once

#include <com/sun/star/document/EmptyUndoStackException.hpp>
#include <com/sun/star/document/XUndoManager.hpp>

#include "office/libreoffice/at_end.h"
#include "office/libreoffice/powerpoint/impress_deck.h"

namespace libreoffice::powerpoint {

/// What is written into a presentation during the life of this object becomes no step of its own in
/// the Undo menu. LibreOffice records few things that automation does to slides, names and tables
/// among them: those steps would take back parts of an export and not the slides. They become a
/// part of the user's last step; where there is none, they go. Not to be nested.
///
/// To lock the steps, as in a workbook, does nothing in a presentation.
class HiddenStep {
public:
    explicit HiddenStep(ImpressDeck& deck) : steps_(deck.undoSteps()) {
        if (!steps_.is()) return;
        try {
            steps_->enterHiddenUndoContext();
        } catch (const css::document::EmptyUndoStackException&) {
            isFirst_ = true;
        }
    }
    HiddenStep(const HiddenStep&) = delete;
    HiddenStep& operator=(const HiddenStep&) = delete;
    ~HiddenStep() {
        if (!steps_.is()) return;
        asFarAsPossible([this] {
            if (isFirst_)
                steps_->clear();
            else
                steps_->leaveUndoContext();
        });
    }

private:
    uno::Reference<css::document::XUndoManager> steps_;
    bool isFirst_ = false;
};

}  // namespace libreoffice::powerpoint
