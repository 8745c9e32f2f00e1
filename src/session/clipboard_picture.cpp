#include "session/clipboard_picture.h"

namespace session {

office::ClipboardPicture ClipboardPicture(OfficeSession& session, int format) {
    constexpr int bitmapFormat = 2;
    using Kind = office::ClipboardPicture::Kind;
    return session.suite.clipboardPicture(format == bitmapFormat ? Kind::Bitmap : Kind::Vector);
}

}  // namespace session
