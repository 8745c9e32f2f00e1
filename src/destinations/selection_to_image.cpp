#include "destinations/selection_to_image.h"

#include <string>

#include "catalogue/numbers.h"
#include "destinations/image_files.h"
#include "destinations/row_picture.h"

namespace destinations {

namespace {

using office::arg;
using office::Object;
using session::OfficeSession;

/// Copies the selection if it is something that a picture can be taken of.
bool copySelection(OfficeSession& session) {
    const Object& book = session.ActiveBook;
    const bool isChartSheet = book.get("ActiveSheet").toObject().typeName() == "Chart";
    const office::Value selected = session.ExcelApp.get("Selection");
    const Object selection = selected.isObject() ? selected.toObject() : Object();
    const std::string type = selection ? selection.typeName() : std::string();
    if (isChartSheet || type == "ChartArea") {
        book.get("ActiveChart").get("ChartArea").call("Copy");
        return true;
    }
    if (type != "Range" || selection.get("Areas").get("Count").toLong() != 1) return false;
    selection.call("CopyPicture", arg("Appearance", catalogue::number::asOnScreen),
                   arg("Format", catalogue::number::bitmapFormat));
    return true;
}

}  // namespace

void SaveSelectionAsImage(OfficeSession& session) {
    session.suite.clearClipboard();
    if (!copySelection(session)) {
        session.host.messageBox(
            "Nothing was saved: select a chart or one block of cells, and try again.", "Murvane");
        return;
    }
    const std::string folder = defaultImageFolder(session);
    const std::string file = folder + "/Murvane.png";
    const std::string picture = copiedPicture(session).png.get();
    session.host.makeFolder(folder);
    session.host.writeImage(picture, session::ImageFormat::Png, file);
    session.host.messageBox("Selection saved as " + file, "");
}

}  // namespace destinations
