#include "powerpoint/placement.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "office/failure_patterns.h"
#include "session/powerpoint_session.h"
#include "session/store_sheet.h"
#include "session/workbook_store.h"

namespace powerpoint {

namespace {

using office::Object;
using session::OfficeSession;

/// The widest and highest that an inserted picture may be, and the width of a placed shape, as a
/// share of the slide's.
constexpr double defaultShare = 0.9;
constexpr double bottomShare = 0.95;
/// What a placed shape keeps of the slide's width and height, whatever the store says: it stays
/// visible.
constexpr double smallestShare = 0.05;
constexpr double titleClearance = 1.05;
constexpr std::int32_t paleGrey = 178 | (178 << 8) | (178 << 16);

office::Size slideSizeOf(const Object& presentation) {
    const Object setup = presentation.get("PageSetup").toObject();
    return {setup.get("SlideWidth").toDouble(), setup.get("SlideHeight").toDouble()};
}

/// Fails for a slide without a title, which keeps what the slide before had.
void readTitle(const Object& shapes, TitlePlace& place) {
    const Object title = shapes.get("Title").toObject();
    place.topPt = title.get("Top").toDouble();
    place.heightPt = title.get("Height").toDouble();
}

/// Half of a length in whole points: the length is rounded to whole points first (halves to the
/// even neighbour), then halved and cut towards zero.
double halfInWholePoints(double lengthPt) {
    return std::trunc(std::nearbyint(lengthPt) / 2);
}

double topOf(const session::Placement& placement, const TitlePlace& title,
             const office::Size& slide) {
    const double topPt = placement.top ? *placement.top * slide.height
                                       : (title.topPt + title.heightPt) * titleClearance;
    return std::clamp(topPt, 0.0, slide.height * (bottomShare - smallestShare));
}

double leftOf(const session::Placement& placement, const office::Size& slide, double shapeWidthPt) {
    if (!placement.left) return halfInWholePoints(slide.width - shapeWidthPt);
    return slide.width * std::clamp(*placement.left, 0.0, 1 - smallestShare);
}

double widthOf(const session::Placement& placement, const office::Size& slide) {
    return slide.width * std::clamp(placement.width.value_or(defaultShare), smallestShare, 1.0);
}

/// What can't be read is left to the program's choice.
session::Placement placementOf(OfficeSession& session) {
    session::Placement placement;
    office::ContinueOnFailure().attempt([&] { placement = session::readStoredPlacement(session); });
    return placement;
}

/// `shape` keeps its proportions while it is moved: each change of a width or a height changes the
/// other one too, so both are read back after it.
void moveShape(const Object& shape, double topPt, const session::Placement& placement,
               const office::Size& slide) {
    shape.put("LockAspectRatio", true);
    shape.put("Top", topPt);
    shape.put("Width", widthOf(placement, slide));
    double widthPt = shape.get("Width").toDouble();

    const double placedTopPt = shape.get("Top").toDouble();
    const double bottomPt = slide.height * bottomShare;
    if (placedTopPt + shape.get("Height").toDouble() > bottomPt) {
        shape.put("Height", bottomPt - placedTopPt);
        widthPt = shape.get("Width").toDouble();
    }

    // The cut at the right edge does not change the width that centres the shape.
    const double leftPt = leftOf(placement, slide, widthPt);
    shape.put("Left", leftPt);
    const double placedLeftPt = shape.get("Left").toDouble();
    if (placedLeftPt + shape.get("Width").toDouble() > slide.width) {
        shape.put("Width", slide.width - placedLeftPt);
        shape.put("Left", leftPt);
    }
}

}  // namespace

void FitPictureToSlide(const Object& picture, const Object& presentation) {
    picture.put("LockAspectRatio", false);
    const office::Size slide = slideSizeOf(presentation);
    // Compared in single precision, so that a picture exactly as wide as the limit is left alone.
    const auto maxWidth = static_cast<float>(slide.width * defaultShare);
    const auto maxHeight = static_cast<float>(slide.height * defaultShare);

    double widthPt = picture.get("Width").toDouble();
    if (static_cast<float>(widthPt) > maxWidth) {
        picture.put("Width", static_cast<double>(maxWidth));
        widthPt = picture.get("Width").toDouble();
    }
    double heightPt = picture.get("Height").toDouble();
    if (static_cast<float>(heightPt) > maxHeight) {
        picture.put("Height", static_cast<double>(maxHeight));
        heightPt = picture.get("Height").toDouble();
    }
    picture.put("Left", (slide.width - widthPt) / 2);
    picture.put("Top", (slide.height - heightPt) / 2);
}

void PlaceLastShape(OfficeSession& session, const Object& shapes, TitlePlace& title) {
    if (!session::SheetExists(session, session::store::sheetName)) return;
    {
        const session::PowerPointWindowLockScope lock(session);
        const office::Size slide = slideSizeOf(session.SessionPresentation);
        const session::Placement placement = placementOf(session);
        office::ContinueOnFailure().attempt([&] { readTitle(shapes, title); });
        moveShape(shapes.get("Item", shapes.get("Count").toLong()).toObject(),
                  topOf(placement, title, slide), placement, slide);
    }
    session.suite.clearClipboard();
}

std::optional<office::RoomForTable> RoomForLastShape(OfficeSession& session, const Object& shapes,
                                                     TitlePlace title) {
    if (!session::SheetExists(session, session::store::sheetName)) return std::nullopt;
    const office::Size slide = slideSizeOf(session.SessionPresentation);
    const session::Placement placement = placementOf(session);
    office::ContinueOnFailure().attempt([&] { readTitle(shapes, title); });
    const double widthPt = widthOf(placement, slide);
    const double leftPt = leftOf(placement, slide, widthPt);
    return office::RoomForTable{std::min(widthPt, slide.width - leftPt),
                                slide.height * bottomShare - topOf(placement, title, slide)};
}

void AddSourceLine(OfficeSession& session, const Object& shapes) {
    const std::string path = session.ActiveBook.get("FullName").toText();
    // The place is fixed, unless the slide ends above it.
    constexpr double lowestPt = 518;
    constexpr double lineHeightPt = 22;
    const double topPt =
        std::min(lowestPt, slideSizeOf(session.SessionPresentation).height - lineHeightPt);
    const Object frame =
        shapes.call("AddLabel", 1, 20.25, topPt, 8.5, 28.875).get("TextFrame").toObject();
    // Without wrapping the label grows from its narrow start to the length of the path.
    frame.put("WordWrap", false);
    const Object text = frame.get("TextRange").toObject();
    text.put("Text", path);
    const Object font = text.get("Font").toObject();
    font.put("Name", "Tahoma");
    font.put("Size", 10);
    font.get("Color").put("RGB", paleGrey);
}

}  // namespace powerpoint
