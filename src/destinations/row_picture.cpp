#include "destinations/row_picture.h"

#include "catalogue/row_copies.h"
#include "office/failure.h"
#include "session/waits.h"

namespace destinations {

using session::OfficeSession;

office::Picture copiedPicture(OfficeSession& session) {
    constexpr std::uint32_t arrivalMs = 500;
    session::SleepMilliseconds(session, arrivalMs);
    const office::CopiedPtr copied = session.suite.clipboard()->copied;
    if (!copied) office::refuse("Clipboard", "There is no picture of it");
    return copied->picture(office::Sharpness::Crisp);
}

office::Picture pictureOfRow(OfficeSession& session, const catalogue::ExportItem& row) {
    session.suite.clearClipboard();
    catalogue::CopyRow(session, row);
    return copiedPicture(session);
}

}  // namespace destinations
