#pragma once

#include "destinations/row_walk.h"

namespace destinations {

/// How items are put into a document.
struct WordOptions {
    bool sameWidth = false;  ///< pictures are made as wide as the text area
    bool caption = false;    ///< a numbered caption below each item that has one
    bool shadow = false;
};

/// Takes the running Word and its active document for the session. False if there is none of the
/// two.
[[nodiscard]] bool AttachWord(session::OfficeSession& session);

/// Appends the taken rows to the session's document, each on a page of its own, in the format of
/// the choices. The document stays open and unsaved.
///
/// Objects that are embedded or linked fill the width of the text, as far as their page has room
/// for the height, without caption and shadow. A row that can't be copied or pasted leaves no page
/// behind. Where the batch collects no failures, one that can't be had in another form than a
/// picture is told in a notice, and the others go on.
WalkResult ExportRowsToWord(RowBatch& batch, catalogue::ExportFormat format,
                            const WordOptions& options);

}  // namespace destinations
