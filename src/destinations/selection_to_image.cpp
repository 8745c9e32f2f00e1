#include "destinations/selection_to_image.h"

#include <string>

#include "catalogue/row_copies.h"
#include "catalogue/selection.h"
#include "destinations/image_files.h"
#include "destinations/row_picture.h"

namespace destinations {

namespace {

using catalogue::Selected;
using office::Object;
using session::OfficeSession;

/// Copies the selection if it is something that a picture can be taken of.
bool copySelection(OfficeSession& session) {
    const catalogue::Selection selection = catalogue::whatIsSelected(session);
    const Selected selected = selection.kind;
    if (selected == Selected::ChartSheet || selected == Selected::Chart) {
        session.ActiveBook.get("ActiveChart").get("ChartArea").call("Copy");
        return true;
    }
    if (selected == Selected::None) return false;
    const Object& cells = selection.cells;
    if (cells.get("Areas").get("Count").toLong() != 1) return false;
    catalogue::CopyCellsAsPicture(cells, catalogue::CopyFormat::Pixels);
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
