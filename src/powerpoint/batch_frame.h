#pragma once

#include <cstdint>
#include <functional>

#include "catalogue/export_list.h"
#include "session/closing.h"
#include "session/office_session.h"

namespace powerpoint {

/// What a batch works on.
struct Batch {
    session::OfficeSession& session;
    catalogue::ExportList& list;
    const catalogue::ExportChoices& choices;
    /// How the dialogs that led here are closed, once the first item begins.
    const session::FormHooks& forms;
};

/// What happens when the window shows no slide at the start of a batch.
enum class NoSlideInView {
    /// The failure goes to the caller.
    Fails,
    /// The last slide is shown instead.
    ShowsLastSlide,
};

/// What tells the formats of a batch apart; the frame is the same for all.
struct BatchRoute {
    NoSlideInView noSlideInView = NoSlideInView::Fails;
    /// The row at hand is the list's selected one.
    bool selectsRow = false;
    /// `ExportKeepsDialogs` while the batch runs.
    bool keepsDialogs = false;
    bool finishesProgress = false;
    /// Takes Excel's drawing to the state that the items need, before the first one.
    std::function<void(Batch&)> prepareScreen;
    /// Puts the row's object on slide `slideIndex`.
    std::function<void(Batch&, const catalogue::ExportItem& row, std::int16_t slideIndex)>
        insertItem;
};

/// Walks the rows in display order and brings each taken one to its slide: to new slides at the
/// end, all added before the first item, or to the slides that the rows name. Each item is
/// inserted, placed, styled and labelled by the options in the session.
///
/// A failure up to the last row goes to the caller and nothing is taken back: the slides stay, and
/// Excel's drawing stays as the route has left it. What puts the windows back afterwards ignores
/// failures.
void RunBatch(Batch& batch, const BatchRoute& route);

}  // namespace powerpoint
