#include "powerpoint/batch_frame.h"

#include <fmt/format.h>

#include <string>
#include <vector>

#include "catalogue/export_run.h"
#include "office/failure_patterns.h"
#include "powerpoint/picture_styles.h"
#include "powerpoint/placement.h"
#include "session/powerpoint_session.h"
#include "session/window_helpers.h"

namespace powerpoint {

namespace {

using catalogue::ExportItem;
using catalogue::TakenRow;
using office::Object;
using session::OfficeSession;

constexpr std::int32_t titleOnlyLayout = 11;

/// One run of the frame. What every row needs is looked up once and held.
class BatchFrame {
public:
    BatchFrame(Batch& batch, const BatchRoute& route)
        : batch_(batch),
          session_(batch.session),
          route_(route) {}

    void run();

private:
    void prepare();
    void exportRow(const TakenRow& taken);
    void showSlideOf(const TakenRow& taken);
    void finishItem(const ExportItem& row, bool isThere);
    void styleLastShape(const Object& shapes);
    void removeSlidesLeft();
    void putBack();

    Batch& batch_;
    OfficeSession& session_;
    const BatchRoute& route_;
    std::vector<TakenRow> rows_;
    Object slides_;
    Object window_;
    /// Rows that have had their turn, also those that failed.
    std::int32_t done_ = 0;
};

void BatchFrame::run() {
    prepare();
    for (const TakenRow& taken : rows_) {
        if (session_.progress.cancelled()) break;
        exportRow(taken);
        ++done_;
    }
    const auto total = static_cast<std::int32_t>(rows_.size());
    if (done_ < total) removeSlidesLeft();
    session_.ExcelApp.put("ScreenUpdating", true);
    putBack();
    if (done_ == total) return;
    session::ShowNotice(
        session_.notices,
        fmt::format("The export was cancelled: {} of {} items were exported.", done_, total),
        "Murvane", "info", session::buttons::okOnly);
}

void BatchFrame::prepare() {
    session::PrepareSlideView(session_);
    slides_ = session_.SessionPresentation.get("Slides").toObject();
    window_ = session::PresentationWindow(session_);
    rows_ = catalogue::takeRows(session_, batch_.list, batch_.choices);
    session_.SlideCountAtStart = slides_.get("Count").toLong();
    if (!batch_.choices.predefinedSlides) {
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            slides_.call("Add", session_.SlideCountAtStart + 1, titleOnlyLayout);
        }
    }
    session::SetExcelWindow(session_, session::ExcelWindow::Normal);
    session::RaisePresentation(session_);
    session_.suite.clearClipboard();
    route_.prepareScreen(batch_);
}

void BatchFrame::exportRow(const TakenRow& taken) {
    const ExportItem& row = batch_.list.rows[taken.index];
    batch_.list.selected = static_cast<std::ptrdiff_t>(taken.index);
    const auto work = [&] {
        showSlideOf(taken);
        catalogue::ProgressStep(session_);
        finishItem(row, route_.insertItem(batch_, row, session_.CurrentSlideIndex));
        window_.get("Selection").call("Unselect");
    };
    if (!batch_.onFailedItem) {
        work();
        return;
    }
    office::ContinueOnFailure scope;
    if (!scope.attempt(work)) batch_.onFailedItem(row, *scope.lastFailure());
}

void BatchFrame::showSlideOf(const TakenRow& taken) {
    if (batch_.choices.predefinedSlides) {
        slides_.get("Item", taken.slide).call("Select");
        session_.CurrentSlideIndex = static_cast<std::int16_t>(taken.slide);
    } else {
        const std::int32_t slide = session_.SlideCountAtStart + done_ + 1;
        window_.get("View").call("GotoSlide", slide);
        session_.CurrentSlideIndex = static_cast<std::int16_t>(slide);
    }
}

/// An item that isn't there leaves the slide's other shapes as they are.
void BatchFrame::finishItem(const ExportItem& row, bool isThere) {
    const Object shapes =
        slides_.get("Item", std::int32_t{session_.CurrentSlideIndex}).get("Shapes").toObject();
    if (isThere && !session_.DefaultPlacement) PlaceLastShape(session_);
    if (isThere) styleLastShape(shapes);
    if (session_.sourceInc) AddSourceLine(session_);
    if (session_.slideTitle) {
        shapes.get("Title").get("TextFrame").get("TextRange").put("Text", row.caption);
    }
    if (isThere && session_.checkShadow) {
        // The option has no look of its own: it sets the style for the rest of the batch. Coming
        // after the source line, it gives the shadow to that one where there is one.
        session_.PictureStyle = style::shadow;
        styleLastShape(shapes);
    }
}

void BatchFrame::styleLastShape(const Object& shapes) {
    if (session_.PictureStyle == style::none) return;
    ApplyPictureStyle(session_.PictureStyle,
                      shapes.get("Item", shapes.get("Count").toLong()).toObject());
}

/// The new slides of a cancelled batch that no item has come to.
void BatchFrame::removeSlidesLeft() {
    if (batch_.choices.predefinedSlides) return;
    for (auto left = static_cast<std::int32_t>(rows_.size()); left > done_; --left) {
        slides_.get("Item", session_.SlideCountAtStart + left).call("Delete");
    }
}

void BatchFrame::putBack() {
    office::ContinueOnFailure scope;
    session_.progress.unload();
    session_.host.letEventsRun();
    scope.attempt([&] { session::SetExcelWindow(session_, session::ExcelWindow::Maximised); });
    // A blanket repair of whatever copying has left hidden.
    scope.attempt(
        [&] { session_.ExcelApp.get("Rows", "1:500000").get("EntireRow").put("Hidden", false); });
    scope.attempt([&] { window_.put("ViewType", std::int32_t{session_.SavedViewType}); });
}

}  // namespace

void RunBatch(Batch& batch, const BatchRoute& route) {
    BatchFrame(batch, route).run();
}

}  // namespace powerpoint
