#include "powerpoint/batch_frame.h"

#include <cstddef>
#include <string>

#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "powerpoint/numbers.h"
#include "powerpoint/picture_styles.h"
#include "powerpoint/placement.h"
#include "powerpoint/progress.h"
#include "session/powerpoint_session.h"
#include "session/window_helpers.h"

namespace powerpoint {

namespace {

using catalogue::ExportItem;
using office::Object;
using session::OfficeSession;

constexpr std::int32_t titleOnlyLayout = 11;
constexpr std::int32_t normalWindow = -4143;
constexpr std::int32_t maximisedWindow = -4137;
constexpr int showNormal = 1;

enum class RowResult { Next, EndsBatch };

/// One run of the frame. What every row needs is looked up once and held.
class BatchFrame {
public:
    BatchFrame(Batch& batch, const BatchRoute& route)
        : batch_(batch),
          session_(batch.session),
          route_(route),
          objects_(batch.session) {}

    void run();

private:
    enum class Target { Shown, None, AllPlaced };

    void prepare();
    void addSlides();
    void raisePowerPoint();
    void noteSlideInView();
    [[nodiscard]] std::int16_t slideInView() const;
    RowResult takeRow(std::size_t index);
    Target gotoNewSlide();
    Target gotoNamedSlide(const ExportItem& row);
    void exportRow(std::size_t index);
    void finishItem(const ExportItem& row);
    [[nodiscard]] std::int16_t countShapes() const;
    void putBack();

    Batch& batch_;
    OfficeSession& session_;
    const BatchRoute& route_;
    catalogue::RowObjects objects_;
    Object presentation_;
    Object slides_;
    Object window_;
    /// Items that have got their slide so far.
    std::int16_t placed_ = 0;
};

void BatchFrame::run() {
    if (route_.keepsDialogs) session_.ExportKeepsDialogs = true;
    prepare();
    RowResult last = RowResult::Next;
    for (std::size_t i = 0; i < batch_.list.rows.size() && last == RowResult::Next; ++i) {
        last = takeRow(i);
    }
    if (last != RowResult::EndsBatch) session_.ExcelApp.put("ScreenUpdating", true);
    if (route_.finishesProgress) ProgressFinish(session_);
    putBack();
}

void BatchFrame::prepare() {
    session::PrepareSlideView(session_);
    presentation_ = session_.PowerPointApp.get("ActivePresentation").toObject();
    slides_ = presentation_.get("Slides").toObject();
    session_.SlideCountAtStart = slides_.get("Count").toLong();
    if (!batch_.choices.predefinedSlides) addSlides();
    session_.ExcelApp.put("WindowState", normalWindow);
    raisePowerPoint();
    noteSlideInView();
    session_.suite.clearClipboard();
    route_.prepareScreen(batch_);
}

void BatchFrame::addSlides() {
    for (int i = 0; i < session_.CheckedCount; ++i) {
        slides_.call("Add", session_.SlideCountAtStart + 1, titleOnlyLayout);
    }
}

void BatchFrame::raisePowerPoint() {
    const std::string caption = presentation_.get("Name").toText() + " - PowerPoint";
    office::WindowHandle window = 0;
    session::BringWindowToFront(session_, caption, window, showNormal);
}

void BatchFrame::noteSlideInView() {
    const auto note = [&] {
        window_ = session_.PowerPointApp.get("ActiveWindow").toObject();
        session_.CurrentSlideIndex = slideInView();
    };
    if (route_.noSlideInView == NoSlideInView::Fails) {
        note();
        return;
    }
    office::ContinueOnFailure scope;
    if (scope.attempt(note)) return;
    scope.attempt([&] { window_.get("View").call("GotoSlide", slides_.get("Count").toLong()); });
    scope.attempt([&] { session_.CurrentSlideIndex = slideInView(); });
}

std::int16_t BatchFrame::slideInView() const {
    return shortInteger(window_.get("View").get("Slide").get("SlideIndex").toDouble());
}

RowResult BatchFrame::takeRow(std::size_t index) {
    const ExportItem& row = batch_.list.rows[index];
    if (objects_.isOnVisibleSheet(row)) {
        const Target target =
            batch_.choices.predefinedSlides ? gotoNamedSlide(row) : gotoNewSlide();
        if (target == Target::AllPlaced) return RowResult::EndsBatch;
        if (target == Target::None) return RowResult::Next;
        exportRow(index);
    } else if (row.checked) {
        // A sheet that has gone is passed over; a workbook that has gone ends the batch here.
        static_cast<void>(session_.ActiveBook.get("Name"));
    }
    window_.get("Selection").call("Unselect");
    return RowResult::Next;
}

BatchFrame::Target BatchFrame::gotoNewSlide() {
    ++placed_;
    const std::int32_t slide = placed_ + session_.SlideCountAtStart;
    window_.get("View").call("GotoSlide", slide);
    session_.CurrentSlideIndex = shortInteger(slide);
    return Target::Shown;
}

BatchFrame::Target BatchFrame::gotoNamedSlide(const ExportItem& row) {
    if (placed_ == session_.CheckedCount) return Target::AllPlaced;
    const double number = office::leadingNumber(row.slideNumber);
    if (number == 0) return Target::None;
    ++placed_;
    session_.CurrentSlideIndex = shortInteger(number);
    slides_.get("Item", std::int32_t{session_.CurrentSlideIndex}).call("Select");
    return Target::Shown;
}

void BatchFrame::exportRow(std::size_t index) {
    const ExportItem& row = batch_.list.rows[index];
    if (route_.selectsRow) batch_.list.selected = static_cast<std::ptrdiff_t>(index);
    ProgressStep(session_, batch_.forms);
    route_.insertItem(batch_, row, session_.CurrentSlideIndex);
    finishItem(row);
}

void BatchFrame::finishItem(const ExportItem& row) {
    if (!session_.DefaultPlacement) {
        LoadSlidePlacement(session_);
        PlaceLastShape(session_);
    }
    if (session_.PictureStyle > style::none) ApplyPictureStyle(session_, countShapes());
    if (session_.sourceInc) AddSourceLine(session_);
    if (session_.slideTitle) {
        slides_.get("Item", std::int32_t{session_.CurrentSlideIndex})
            .get("Shapes")
            .get("Title")
            .get("TextFrame")
            .get("TextRange")
            .put("Text", row.caption);
    }
    if (session_.checkShadow) {
        // The option has no look of its own: it sets the style for the rest of the batch. Coming
        // after the source line, it gives the shadow to that one where there is one.
        session_.PictureStyle = style::shadow;
        ApplyPictureStyle(session_, countShapes());
    }
}

std::int16_t BatchFrame::countShapes() const {
    return shortInteger(
        window_.get("Selection").get("SlideRange").get("Shapes").get("Count").toDouble());
}

void BatchFrame::putBack() {
    office::ContinueOnFailure scope;
    session_.progress.unload();
    session_.host.letEventsRun();
    scope.attempt([&] { session_.ExcelApp.put("WindowState", maximisedWindow); });
    // A blanket repair of whatever copying has left hidden.
    scope.attempt(
        [&] { session_.ExcelApp.get("Rows", "1:500000").get("EntireRow").put("Hidden", false); });
    scope.attempt([&] { window_.put("ViewType", std::int32_t{session_.SavedViewType}); });
    if (route_.keepsDialogs) session_.ExportKeepsDialogs = false;
}

}  // namespace

void RunBatch(Batch& batch, const BatchRoute& route) {
    BatchFrame(batch, route).run();
}

}  // namespace powerpoint
