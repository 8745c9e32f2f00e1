#include "destinations/row_picture.h"

#include "catalogue/row_copies.h"
#include "office/failure.h"
#include "session/waits.h"

namespace destinations {

using session::OfficeSession;

std::string copiedPicture(OfficeSession& session) {
    constexpr std::uint32_t arrivalMs = 500;
    session::SleepMilliseconds(session, arrivalMs);
    const office::ClipboardPicture picture =
        session.suite.clipboardPicture(office::ClipboardPicture::Kind::Bitmap);
    if (picture.bytes.empty()) {
        throw office::Failure(office::FailureNumber::ApplicationDefined, "Clipboard",
                              "There is no picture of it");
    }
    return {picture.bytes.begin(), picture.bytes.end()};
}

std::string pictureOfRow(OfficeSession& session, const catalogue::ExportItem& row) {
    session.suite.clearClipboard();
    catalogue::CopyRow(session, row);
    return copiedPicture(session);
}

}  // namespace destinations
