#include "powerpoint/placement.h"

#include <string>

#include "office/failure_patterns.h"
#include "office/text.h"
#include "powerpoint/numbers.h"
#include "session/window_lock.h"
#include "session/workbook_store.h"

namespace powerpoint {

namespace {

using office::Object;
using office::Value;
using session::OfficeSession;

/// The widest and highest that an inserted picture may be, and the width of a placed shape, as a
/// share of the slide's.
constexpr double defaultShare = 0.9;
constexpr double bottomShare = 0.95;
constexpr double titleClearance = 1.05;
constexpr double gapBelowTitlePt = 5;
constexpr std::int32_t paleGrey = 178 | (178 << 8) | (178 << 16);

struct SlideSize {
    double widthPt;
    double heightPt;
};

SlideSize slideSizeOf(const Object& presentation) {
    const Object setup = presentation.get("PageSetup").toObject();
    return {setup.get("SlideWidth").toDouble(), setup.get("SlideHeight").toDouble()};
}

Object slideOf(const Object& presentation, std::int16_t index) {
    return presentation.get("Slides").get("Item", std::int32_t{index}).toObject();
}

bool isDefaultWord(const Value& value) {
    return value.isText() && value.toText() == "Default";
}

Object selectionOf(const OfficeSession& session) {
    return session.PowerPointApp.get("ActiveWindow").get("Selection").toObject();
}

void readTitle(OfficeSession& session, const Object& presentation) {
    // The question is about the slide of the window's selection, the answer about the slide being
    // worked on. The two are meant to be one, and nothing checks that they are.
    const Object shown = selectionOf(session).get("SlideRange").get("Shapes").toObject();
    if (!shown.get("HasTitle").toBool()) return;
    const Object title =
        slideOf(presentation, session.CurrentSlideIndex).get("Shapes").get("Title").toObject();
    session.TitleTop = title.get("Top").toDouble();
    session.TitleHeight = title.get("Height").toDouble();
    session.TitleWidth = title.get("Width").toDouble();
}

void readPlacement(OfficeSession& session) {
    const session::Placement stored = session::readStoredPlacement(session);
    const Object presentation = session.PowerPointApp.get("ActivePresentation").toObject();
    readTitle(session, presentation);

    if (stored.top) {
        session.TopPct = *stored.top;
    } else {
        const double heightPt = presentation.get("PageSetup").get("SlideHeight").toDouble();
        session.TopPct = (session.TitleHeight + session.TitleTop) * titleClearance / heightPt;
    }
    session.WidthPct = stored.width.value_or(defaultShare);
    session.LeftPct = stored.left ? Value(*stored.left) : Value("Default");
}

double topOf(const OfficeSession& session, const SlideSize& slide) {
    if (session.TopPct.isBlank() || isDefaultWord(session.TopPct)) {
        return gapBelowTitlePt + (session.TitleTop + session.TitleHeight);
    }
    return office::leadingNumber(session.TopPct.toText()) * slide.heightPt;
}

double leftOf(const OfficeSession& session, const SlideSize& slide, double shapeWidthPt) {
    if (isDefaultWord(session.LeftPct)) return halfInWholePoints(slide.widthPt - shapeWidthPt);
    return office::leadingNumber(session.LeftPct.toText()) * slide.widthPt;
}

/// `shape` keeps its proportions while it is moved: each change of a width or a height changes the
/// other one too, so both are read back after it.
void moveShape(const OfficeSession& session, const Object& shape, const SlideSize& slide) {
    shape.put("LockAspectRatio", true);
    const double topPt = topOf(session, slide);
    shape.put("Top", topPt);
    shape.put("Width", slide.widthPt * session.WidthPct.toDouble());
    double widthPt = shape.get("Width").toDouble();

    const double placedTopPt = shape.get("Top").toDouble();
    const double bottomPt = slide.heightPt * bottomShare;
    if (placedTopPt + shape.get("Height").toDouble() > bottomPt) {
        shape.put("Height", bottomPt - placedTopPt);
        widthPt = shape.get("Width").toDouble();
    }

    // The cut at the right edge does not change the width that centres the shape.
    const double leftPt = leftOf(session, slide, widthPt);
    shape.put("Left", leftPt);
    const double placedLeftPt = shape.get("Left").toDouble();
    if (placedLeftPt + shape.get("Width").toDouble() > slide.widthPt) {
        shape.put("Width", slide.widthPt - placedLeftPt);
        shape.put("Left", leftPt);
    }
}

}  // namespace

void FitPictureToSlide(const Object& picture, const Object& presentation) {
    picture.put("LockAspectRatio", false);
    const SlideSize slide = slideSizeOf(presentation);
    // Compared in single precision, so that a picture exactly as wide as the limit is left alone.
    const auto maxWidth = static_cast<float>(slide.widthPt * defaultShare);
    const auto maxHeight = static_cast<float>(slide.heightPt * defaultShare);

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
    picture.put("Left", (slide.widthPt - widthPt) / 2);
    picture.put("Top", (slide.heightPt - heightPt) / 2);
}

void LoadSlidePlacement(OfficeSession& session) {
    office::ContinueOnFailure().attempt([&] { readPlacement(session); });
}

void PlaceLastShape(OfficeSession& session) {
    if (!session::SheetExists(session, session::store::sheetName)) return;
    {
        const session::PowerPointWindowLockScope lock(session);
        if (session.PowerPointApp) {
            session.SessionPresentation =
                session.PowerPointApp.get("ActivePresentation").toObject();
        }
        const Object shapes = slideOf(session.SessionPresentation, session.CurrentSlideIndex)
                                  .get("Shapes")
                                  .toObject();
        shapes.get("Item", shapes.get("Count").toLong()).call("Select");
        moveShape(session, selectionOf(session).get("ShapeRange").toObject(),
                  slideSizeOf(session.SessionPresentation));
    }
    session.suite.clearClipboard();
}

void AddSourceLine(OfficeSession& session) {
    const std::string path = session.ActiveBook.get("FullName").toText();
    const Object selection = selectionOf(session);
    // The place is fixed, whatever the slide's size.
    const Object label = selection.get("SlideRange")
                             .get("Shapes")
                             .call("AddLabel", 1, 20.25, 518.0, 8.5, 28.875)
                             .toObject();
    label.call("Select");
    // Without wrapping the label grows from its narrow start to the length of the path.
    label.get("TextFrame").put("WordWrap", false);

    const Object text = selection.get("ShapeRange").get("TextFrame").get("TextRange").toObject();
    text.call("Characters", office::arg("Start", 1), office::arg("Length", 0)).call("Select");
    text.put("Text", path);
    const Object font = text.get("Font").toObject();
    font.put("Name", "Tahoma");
    font.put("Size", 10);
    font.put("Color", paleGrey);
    selection.call("Unselect");
}

}  // namespace powerpoint
