#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "catalogue/export_choices.h"
#include "catalogue/row_copies.h"
#include "session/office_session.h"

/// What embedding and linking have in common: a copy, a paste that is asked for in several ways
/// until one works, and a notice where it did not come about.
namespace powerpoint {

/// One way of asking PowerPoint to paste. It gives the pasted shapes where it has them, or nothing.
using PasteAttempt = std::function<office::Value()>;
/// Whether the next way is tried after a failure alone, or also after a paste that gave nothing.
enum class NextAttempt { AfterFailure, AfterFailureOrNothing };

/// Brings a slide into view and pastes on it. Whether something has arrived: shapes that were
/// given, or more of them on the slide than before.
bool pasteByAttempts(session::OfficeSession& session, const office::Object& slide, NextAttempt next,
                     const std::vector<PasteAttempt>& attempts);

/// What tells the two apart. The targets end the sentence that a paste failed.
struct ObjectRoute {
    bool (*paste)(session::OfficeSession& session, const office::Object& slide);
    catalogue::CopyPause pause;
    const char* chartSheetTarget;
    const char* chartTarget;
    const char* rangeTarget;
};

/// Copies a row's object by its kind and pastes it. Whether it is there; if not, a notice has said
/// why.
bool pasteRowAsObject(session::OfficeSession& session, const catalogue::ExportItem& row,
                      const office::Object& slide, const ObjectRoute& route);

}  // namespace powerpoint
