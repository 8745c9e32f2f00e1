#include "powerpoint/excel_objects.h"

#include "catalogue/export_run.h"
#include "office/failure_patterns.h"
#include "powerpoint/numbers.h"
#include "powerpoint/object_paste.h"
#include "session/powerpoint_session.h"

namespace powerpoint {

namespace {

using catalogue::ExportItem;
using office::arg;
using office::Object;
using office::Value;
using session::OfficeSession;

bool PasteEmbeddedObject(OfficeSession& session, const Object& slide) {
    return pasteByAttempts(
        session, slide, NextAttempt::AfterFailureOrNothing,
        {[&] {
             return slide.get("Shapes").call("PasteSpecial", arg("DataType", number::oleObject),
                                             arg("Link", false));
         },
         [&] { return slide.get("Shapes").call("PasteSpecial", number::oleObject); },
         [&] {
             session::PresentationWindow(session).get("View").call(
                 "PasteSpecial", arg("DataType", number::oleObject), arg("DisplayAsIcon", false),
                 arg("Link", false));
             return Value();
         }});
}

constexpr ObjectRoute embedded{.paste = PasteEmbeddedObject,
                               .pause = catalogue::CopyPause::UntilRendered,
                               .chartSheetTarget = "as an embedded Excel object.",
                               .chartTarget = "to PowerPoint.",
                               .rangeTarget = "as an embedded Excel object."};

}  // namespace

bool PasteRowAsExcelObject(OfficeSession& session, const ExportItem& row, const Object& slide) {
    return pasteRowAsObject(session, row, slide, embedded);
}

std::vector<std::string> remarksOnOneMore(OfficeSession& session) {
    const auto remarksOn = [&](const std::vector<office::PasteItem>& items) {
        return session.suite.remarksOn("PowerPoint.Application", office::PasteAs::Embedded, items);
    };
    std::vector<std::string> lines;
    office::ContinueOnFailure().attempt([&] {
        lines = remarksOn({{}});
        if (lines.empty()) return;
        for (const std::string& known : remarksOn({})) std::erase(lines, known);
    });
    return lines;
}

}  // namespace powerpoint
