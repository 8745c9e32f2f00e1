#include "powerpoint/linked_objects.h"

#include "catalogue/export_run.h"
#include "powerpoint/object_paste.h"
#include "session/powerpoint_session.h"

namespace powerpoint {

namespace {

using catalogue::ExportItem;
using office::arg;
using office::Object;
using office::Value;
using session::OfficeSession;

bool PasteLinkedObject(OfficeSession& session, const Object& slide) {
    return pasteByAttempts(
        session, slide, NextAttempt::AfterFailure,
        {[&] { return slide.get("Shapes").call("PasteSpecial", arg("Link", true)); },
         [&] {
             session::PresentationWindow(session).get("View").call("PasteSpecial",
                                                                   arg("Link", true));
             return Value();
         }});
}

constexpr ObjectRoute linked{.paste = PasteLinkedObject,
                             .pause = catalogue::CopyPause::None,
                             .chartSheetTarget = "as a linked object.",
                             .chartTarget = "as a linked object.",
                             .rangeTarget = "as a linked object."};

}  // namespace

bool PasteRowAsLink(OfficeSession& session, const ExportItem& row, const Object& slide) {
    return pasteRowAsObject(session, row, slide, linked);
}

}  // namespace powerpoint
