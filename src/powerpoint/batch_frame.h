#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "catalogue/export_choices.h"
#include "catalogue/failed_items.h"
#include "catalogue/needed_documents.h"
#include "office/failure.h"
#include "session/office_session.h"

namespace powerpoint {

/// How items are put on slides.
struct SlideOptions {
    bool titles = false;      ///< captions become slide titles
    bool sourceLine = false;  ///< a line with the workbook's path
    bool shadow = false;      ///< for the last shape of each slide
    session::PictureLook look = session::PictureLook::None;
    /// By the placement in the store; otherwise shapes stay as they are inserted.
    bool placesShapes = false;
};

/// What a batch works on. It goes to the session's presentation, whichever the user looks at
/// meanwhile.
struct Batch {
    session::OfficeSession& session;
    catalogue::ExportList& list;
    const catalogue::ExportChoices& choices;
    catalogue::OnFailedItem onFailedItem;
    SlideOptions options = {};
    /// Told of a picture that fails after the last row has gone by, when nobody can say of which
    /// row it is. Where there is none, that is a failure of the batch, with no row at hand.
    std::function<void(const office::Failure& failure)> onLateFailure = {};
    /// A failure that ends the batch leaves no slide without its item, and windows as after a
    /// cancelled one.
    bool tidiesUpAfterFailure = false;
    /// Null where nobody closes anything.
    catalogue::NeededDocuments* needed = nullptr;
};

/// What tells the formats of a batch apart; the frame is the same for all.
struct BatchRoute {
    /// Puts the row's object on a slide. False if it isn't there and the user knows.
    bool (*insertItem)(session::OfficeSession& session, const catalogue::ExportItem& row,
                       const office::Object& slide);
    /// Items are copied, for which Excel has to draw. Without items nothing is touched, and
    /// progress ends with the last one as done.
    bool pastes = false;
    /// A selection that the application doesn't drop is left in peace.
    bool ignoresSelection = false;
    /// Excel's window is made large at the end.
    bool restoresExcel = true;
    /// The warning where no item has arrived; none if empty.
    std::string_view noneArrived = {};
};

/// Walks the taken rows in display order and brings each one to its slide: to new slides at the
/// end, all added before the first item, or to the slides that the rows name. Each item is
/// inserted, placed, styled and labelled by the options. The row at hand is the list's selected
/// one. Returns how many have had their turn.
///
/// When the user cancels, the batch ends after the item at hand: what was made stays, new slides
/// without an item go, and a notice says how far it came. So it does when something is closed that
/// it needs; an item that fails by that has had no turn.
///
/// A failure up to the last row goes to the caller, or to `onFailedItem`. Where the batch ends by
/// it and isn't told to tidy up, nothing is taken back: the slides stay, and Excel's drawing stays
/// as the route has left it. What puts the windows back afterwards ignores failures.
std::int32_t RunBatch(Batch& batch, const BatchRoute& route);

}  // namespace powerpoint
