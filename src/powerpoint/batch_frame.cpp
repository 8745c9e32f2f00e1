#include "powerpoint/batch_frame.h"

#include <optional>
#include <string>
#include <vector>

#include "catalogue/export_run.h"
#include "office/at_end.h"
#include "office/failure_patterns.h"
#include "powerpoint/numbers.h"
#include "powerpoint/picture_styles.h"
#include "powerpoint/placement.h"
#include "session/powerpoint_session.h"

namespace powerpoint {

namespace {

using catalogue::ExportItem;
using catalogue::TakenRow;
using office::Object;
using session::OfficeSession;
using session::PictureLook;

/// One run of the frame. What every row needs is looked up once and held.
class BatchFrame {
public:
    BatchFrame(Batch& batch, const BatchRoute& route)
        : batch_(batch),
          session_(batch.session),
          route_(route),
          look_(batch.options.look) {}

    std::int32_t run();

private:
    void walk();
    void prepare();
    void addSlides();
    [[nodiscard]] bool exportRow(const TakenRow& taken);
    [[nodiscard]] Object showSlideOf(const TakenRow& taken);
    [[nodiscard]] bool insert(const ExportItem& row, const Object& slide);
    void finishItem(const ExportItem& row, const Object& slide, bool isThere);
    void putTitle(const Object& shapes, const std::string& caption) const;
    void styleLastShape(const Object& shapes) const;
    void removeSlidesLeft();
    void tidyUp();
    /// Returns what a picture says that has failed late.
    [[nodiscard]] std::optional<office::Failure> putBack();

    Batch& batch_;
    OfficeSession& session_;
    const BatchRoute& route_;
    std::vector<TakenRow> rows_;
    Object slides_;
    Object window_;
    std::int32_t viewType_ = 0;
    /// In the order of the rows; none where slides are predefined. The user may add, move and
    /// delete slides meanwhile.
    std::vector<Object> newSlides_;
    PictureLook look_;
    TitlePlace title_;
    /// Rows that have had their turn, also those that failed.
    std::int32_t done_ = 0;
    std::int32_t exported_ = 0;
    bool isOneMissing_ = false;
};

std::int32_t BatchFrame::run() {
    rows_ = catalogue::takeRows(session_, batch_.list, batch_.choices);
    if (rows_.empty() && route_.pastes) return 0;
    try {
        walk();
    } catch (const office::SuiteLost&) {
        throw;
    } catch (const office::Failure&) {
        if (batch_.tidiesUpAfterFailure) tidyUp();
        throw;
    }
    const auto total = static_cast<std::int32_t>(rows_.size());
    if (done_ < total) removeSlidesLeft();
    session_.ExcelApp.put("ScreenUpdating", true);
    if (route_.pastes && done_ == total) catalogue::ProgressStep(session_, total, total);
    const auto lateFailure = putBack();
    // Ahead of every notice: whoever has closed something may go on working there meanwhile.
    if (batch_.needed != nullptr) batch_.needed->letGo();
    if (done_ < total) {
        catalogue::TellEnded(session_, batch_.needed, exported_, total);
    } else if (exported_ == 0 && !route_.noneArrived.empty()) {
        session::ShowWarningNotice(session_.notices, std::string(route_.noneArrived));
    }
    if (lateFailure && !batch_.onLateFailure) {
        batch_.list.selected = -1;
        throw office::Failure(*lateFailure);
    }
    if (lateFailure) batch_.onLateFailure(*lateFailure);
    return done_;
}

void BatchFrame::walk() {
    prepare();
    for (const TakenRow& taken : rows_) {
        if (catalogue::isToEnd(session_, batch_.needed)) return;
        if (!exportRow(taken)) return;
        ++done_;
    }
}

void BatchFrame::prepare() {
    viewType_ = session::PrepareSlideView(session_);
    slides_ = session_.SessionPresentation.get("Slides").toObject();
    window_ = session::PresentationWindow(session_);
    if (!batch_.choices.predefinedSlides) addSlides();
    session::SetExcelWindow(session_, session::ExcelWindow::Normal);
    session::RaisePresentation(session_);
    if (route_.pastes) {
        catalogue::RestoreScreenUpdating(session_);
    } else {
        session_.ExcelApp.put("ScreenUpdating", false);
    }
}

/// None is held before all are there: one that comes ahead of slides that nobody knows can be put
/// behind them, which LibreOffice does ten times as fast.
void BatchFrame::addSlides() {
    const std::int32_t end = slides_.get("Count").toLong() + 1;
    const auto count = static_cast<std::int32_t>(rows_.size());
    std::int32_t added = 0;
    const auto hold = [&] {
        for (std::int32_t i = 0; i < added; ++i)
            newSlides_.push_back(slides_.get("Item", end + i).toObject());
    };
    try {
        for (; added < count; ++added)
            static_cast<void>(slides_.call("Add", end, number::titleOnlyLayout));
    } catch (const office::Failure&) {
        if (batch_.tidiesUpAfterFailure) hold();
        throw;
    }
    hold();
}

/// False where the row has failed by something that has been closed: so would all others.
bool BatchFrame::exportRow(const TakenRow& taken) {
    const ExportItem& row = batch_.list.rows[taken.index];
    batch_.list.selected = static_cast<std::ptrdiff_t>(taken.index);
    const auto work = [&] {
        const Object slide = showSlideOf(taken);
        catalogue::ProgressStep(session_, done_ + 1, static_cast<std::int32_t>(rows_.size()));
        // A workbook that is closed meanwhile would bring up a notice for each of its items.
        if (isOneMissing_) static_cast<void>(session_.ActiveBook.get("Name"));
        const bool isThere = insert(row, slide);
        if (isThere) ++exported_;
        if (!isThere) isOneMissing_ = true;
        finishItem(row, slide, isThere);
        const auto unselect = [&] { window_.get("Selection").call("Unselect"); };
        if (route_.ignoresSelection) {
            office::ContinueOnFailure().attempt(unselect);
        } else {
            unselect();
        }
    };
    return catalogue::letHaveTurn(batch_.onFailedItem, row, work) || batch_.needed == nullptr ||
           batch_.needed->areOpen();
}

Object BatchFrame::showSlideOf(const TakenRow& taken) {
    if (batch_.choices.predefinedSlides) {
        Object slide = slides_.get("Item", taken.slide).toObject();
        slide.call("Select");
        return slide;
    }
    const Object& slide = newSlides_.at(static_cast<std::size_t>(done_));
    window_.get("View").call("GotoSlide", slide.get("SlideIndex"));
    return slide;
}

/// A table is told its room: it is drawn for the size in which it comes.
bool BatchFrame::insert(const ExportItem& row, const Object& slide) {
    const bool isTable =
        batch_.choices.format == catalogue::ExportFormat::Editable && row.isRange();
    if (!isTable || !batch_.options.placesShapes) return route_.insertItem(session_, row, slide);
    const office::ClipboardPtr clipboard = session_.suite.clipboard();
    const office::AtEnd roomGone([&] { clipboard->room.reset(); });
    office::ContinueOnFailure().attempt([&] {
        clipboard->room = RoomForLastShape(session_, slide.get("Shapes").toObject(), title_);
    });
    return route_.insertItem(session_, row, slide);
}

/// An item that isn't there leaves the slide's other shapes as they are.
void BatchFrame::finishItem(const ExportItem& row, const Object& slide, bool isThere) {
    const SlideOptions& options = batch_.options;
    const Object shapes = slide.get("Shapes").toObject();
    if (isThere && options.placesShapes) PlaceLastShape(session_, shapes, title_);
    if (isThere) styleLastShape(shapes);
    if (options.sourceLine) AddSourceLine(session_, shapes);
    if (options.titles) putTitle(shapes, row.caption);
    if (isThere && options.shadow) {
        // The option has no look of its own: it sets the style for the rest of the batch. Coming
        // after the source line, it gives the shadow to that one where there is one.
        look_ = PictureLook::Shadow;
        styleLastShape(shapes);
    }
}

/// A slide that was there before has a title of its own, or no place for one.
void BatchFrame::putTitle(const Object& shapes, const std::string& caption) const {
    const auto put = [&] {
        shapes.get("Title").get("TextFrame").get("TextRange").put("Text", caption);
    };
    if (!batch_.choices.predefinedSlides) {
        put();
    } else if (!caption.empty()) {
        office::ContinueOnFailure().attempt(put);
    }
}

void BatchFrame::styleLastShape(const Object& shapes) const {
    if (look_ == PictureLook::None) return;
    ApplyPictureStyle(look_, shapes.get("Item", shapes.get("Count").toLong()).toObject());
}

/// The new slides of a batch that ends early which no item has come to. Some may have gone already,
/// and a suite may keep its last one.
void BatchFrame::removeSlidesLeft() {
    office::ContinueOnFailure scope;
    for (; static_cast<std::int32_t>(newSlides_.size()) > done_; newSlides_.pop_back())
        scope.attempt([&] { newSlides_.back().call("Delete"); });
}

void BatchFrame::tidyUp() {
    removeSlidesLeft();
    office::ContinueOnFailure().attempt([&] { session_.ExcelApp.put("ScreenUpdating", true); });
    static_cast<void>(putBack());
}

std::optional<office::Failure> BatchFrame::putBack() {
    office::ContinueOnFailure scope;
    session_.progress.unload();
    session_.host.letEventsRun();
    if (route_.restoresExcel) {
        scope.attempt([&] { session::SetExcelWindow(session_, session::ExcelWindow::Maximised); });
    }
    return session::PutBackView(window_, viewType_);
}

}  // namespace

std::int32_t RunBatch(Batch& batch, const BatchRoute& route) {
    return BatchFrame(batch, route).run();
}

}  // namespace powerpoint
