#include "powerpoint/selection_to_slide.h"

#include <fmt/format.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/row_copies.h"
#include "catalogue/selection.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "powerpoint/excel_objects.h"
#include "powerpoint/numbers.h"
#include "session/powerpoint_session.h"
#include "session/read_only.h"
#include "session/waits.h"

namespace powerpoint {

namespace {

using catalogue::Selected;
using office::arg;
using office::Object;
using session::OfficeSession;
using session::SlidePaste;

enum class SourceKind { Chart, Range };

void selectLastShape(const Object& slide) {
    const Object shapes = slide.get("Shapes").toObject();
    shapes.get("Item", shapes.get("Count").toLong()).call("Select");
}

/// One run of the command: what was found at its start is held.
class SelectionPaste {
public:
    SelectionPaste(OfficeSession& session, SlidePaste mode) : session_(session), mode_(mode) {}

    void run();

private:
    [[nodiscard]] bool findsPresentation();
    void findSlide();
    void prepareOldSlide();
    /// False if the command has told the user that it can't go on.
    [[nodiscard]] bool copyAndPaste();
    void pasteNamed(SourceKind kind, const std::function<std::string()>& name);
    void PasteByMode(SourceKind kind);
    void pasteChartAsPicture();
    void pasteRangeOrTell();
    [[nodiscard]] bool PasteRangeAsPicture();
    void pasteFormatted(SourceKind kind);
    void PasteWithSourceFormatting();
    void putBack(std::int32_t viewType);

    [[nodiscard]] Object window() const {
        return session_.PowerPointApp.get("ActiveWindow").toObject();
    }
    [[nodiscard]] Object slide() const {
        return session_.SessionPresentation.get("Slides").get("Item", slideIndex_).toObject();
    }
    /// A slide of the blank layout gets room for a title.
    void leaveBlankLayout() const {
        if (slide().get("Layout").toLong() == number::blankLayout)
            slide().put("Layout", number::titleOnlyLayout);
    }
    void showSlide() const { window().get("View").call("GotoSlide", slideIndex_); }
    void executeSourceFormatting() const {
        session_.PowerPointApp.get("CommandBars").call("ExecuteMso", "PasteSourceFormatting");
    }

    OfficeSession& session_;
    SlidePaste mode_;
    std::int32_t slideIndex_ = 0;
    /// Before version 15 there is no command for source formatting that charts could use, and a
    /// blank slide takes none.
    bool isOld_ = false;
    bool isThere_ = false;
};

void SelectionPaste::run() {
    if (!findsPresentation()) {
        session::ShowWarningNotice(
            session_.notices,
            "No open PowerPoint found. \r Please open an existing presentation or create a new "
            "one");
        return;
    }
    if (session::refusesAsReadOnly(session_, session_.SessionPresentation, "presentation")) return;
    findSlide();
    const std::int32_t viewType = session::ExitShowNormalView(session_);
    constexpr double firstWithRibbonPaste = 15;
    isOld_ = office::leadingNumber(session_.PowerPointApp.get("Version").toText()) <
             firstWithRibbonPaste;
    if (isOld_) prepareOldSlide();
    std::vector<std::string> remarks;
    if (mode_ == SlidePaste::EmbeddedObject) remarks = remarksOnOneMore(session_);
    if (!copyAndPaste()) return;
    session_.host.letEventsRun();
    window().get("Selection").call("Unselect");
    putBack(viewType);
    if (!isThere_) return;
    for (const std::string& remark : remarks) session::ShowWarningNotice(session_.notices, remark);
}

bool SelectionPaste::findsPresentation() {
    session::AttachPowerPoint(session_);
    if (!session_.PowerPointFound ||
        session_.PowerPointApp.get("Presentations").get("Count").toLong() == 0)
        return false;
    session_.SessionPresentation = session_.PowerPointApp.get("ActivePresentation").toObject();
    return true;
}

/// The slide on show, read before a running show ends. If it can't be read, or a window does not
/// come up, the last one is shown and taken.
void SelectionPaste::findSlide() {
    office::ContinueOnFailure scope;
    const auto readSlide = [&] {
        scope.attempt(
            [&] { slideIndex_ = window().get("View").get("Slide").get("SlideIndex").toLong(); });
    };
    readSlide();
    scope.attempt([&] { session::SetExcelWindow(session_, session::ExcelWindow::Normal); });
    scope.attempt([&] { session::RaisePresentation(session_); });
    if (!scope.failed()) return;
    scope.attempt([&] {
        slideIndex_ = session_.SessionPresentation.get("Slides").get("Count").toLong();
        showSlide();
    });
    readSlide();
}

void SelectionPaste::prepareOldSlide() {
    office::ContinueOnFailure scope;
    scope.attempt([&] {
        const Object slides = window().get("Selection").get("SlideRange").toObject();
        if (slides.get("Layout").toLong() == number::blankLayout)
            slides.put("Layout", number::titleLayout);
        selectLastShape(slides);
    });
}

bool SelectionPaste::copyAndPaste() {
    constexpr std::uint32_t chartSheetMs = 300;
    constexpr std::uint32_t embeddedChartMs = 1000;
    constexpr std::uint32_t cellsMs = 300;

    const Object& book = session_.ActiveBook;
    const auto pasteChart = [&](std::uint32_t pauseMs, const auto& nameOf) {
        const Object chart = book.get("ActiveChart").toObject();
        chart.get("ChartArea").call("Copy");
        session::SleepMilliseconds(session_, pauseMs);
        pasteNamed(SourceKind::Chart, [&] { return nameOf(chart); });
        return true;
    };
    const catalogue::Selection selection = catalogue::whatIsSelected(session_);
    const Selected selected = selection.kind;
    if (selected == Selected::ChartSheet)
        return pasteChart(chartSheetMs,
                          [](const Object& chart) { return chart.get("Name").toText(); });
    if (selected == Selected::Chart)
        return pasteChart(embeddedChartMs, [](const Object& chart) {
            return chart.get("Parent").get("Name").toText();
        });
    if (selected == Selected::None) return true;
    const Object& cells = selection.cells;
    if (cells.get("Areas").get("Count").toLong() > 1) {
        session::ShowWarningNotice(session_.notices, "Murvane does not support multiple selection");
        return false;
    }
    if (mode_ == SlidePaste::Pictures) {
        catalogue::CopyCellsAsPicture(cells, catalogue::CopyFormat::Vectors);
        session::SleepMilliseconds(session_, cellsMs);
    } else {
        cells.call("Copy");
    }
    pasteNamed(SourceKind::Range, [&] {
        return fmt::format("{} {}", cells.get("Worksheet").get("Name").toText(),
                           office::replaceAll(cells.get("Address").toText(), "$", ""));
    });
    return true;
}

/// Pastes, and gives what arrives this name as alternative text. What the ribbon's command brings
/// in its own time may come too late for that.
void SelectionPaste::pasteNamed(SourceKind kind, const std::function<std::string()>& name) {
    office::ContinueOnFailure scope;
    const auto count = [](const Object& shapes) { return shapes.get("Count").toLong(); };
    Object shapes;
    std::int32_t before = 0;
    const bool isCounted = scope.attempt([&] {
        shapes = slide().get("Shapes").toObject();
        before = count(shapes);
    });
    PasteByMode(kind);
    if (!isCounted) return;
    scope.attempt([&] {
        const std::int32_t last = count(shapes);
        isThere_ = last > before;
        if (isThere_) shapes.get("Item", last).put("AlternativeText", name());
    });
}

void SelectionPaste::PasteByMode(SourceKind kind) {
    switch (mode_) {
        case SlidePaste::Pictures:
            kind == SourceKind::Chart ? pasteChartAsPicture() : pasteRangeOrTell();
            break;
        case SlidePaste::SourceFormatting:
            pasteFormatted(kind);
            break;
        case SlidePaste::EmbeddedObject:
            slide().get("Shapes").call("PasteSpecial", number::oleObject);
            break;
        case SlidePaste::LinkedObject:
            slide().get("Shapes").call("PasteSpecial", arg("Link", true));
            break;
    }
}

void SelectionPaste::pasteChartAsPicture() {
    office::ContinueOnFailure scope;
    scope.attempt([&] { showSlide(); });
    scope.attempt([&] { window().get("View").call("PasteSpecial", number::enhancedMetafile); });
    if (!scope.failed()) return;
    scope.attempt([&] { slide().get("Shapes").call("PasteSpecial", number::enhancedMetafile); });
}

void SelectionPaste::pasteRangeOrTell() {
    constexpr std::int32_t sheetShownMs = 500;
    if (PasteRangeAsPicture()) return;
    office::ContinueOnFailure scope;
    scope.attempt([&] {
        session_.ActiveBook.get("Sheets").get("Item", session_.ActiveSheetName).call("Select");
    });
    session::WaitMilliseconds(session_, sheetShownMs);
    session::ShowWarningNotice(
        session_.notices,
        "Could not paste the selection to PowerPoint. Click the target slide and try again.");
}

bool SelectionPaste::PasteRangeAsPicture() {
    constexpr std::uint32_t slideShownMs = 200;
    office::ContinueOnFailure scope;
    const bool isReady = scope.attempt([&] {
        showSlide();
        session_.host.letEventsRun();
        session::SleepMilliseconds(session_, slideShownMs);
        leaveBlankLayout();
    });
    return isReady &&
           (scope.attempt([&] { window().get("View").call("PasteSpecial", number::png); }) ||
            scope.attempt([&] { slide().get("Shapes").call("PasteSpecial", number::png); }) ||
            scope.attempt([&] { window().get("View").call("PasteSpecial"); }));
}

void SelectionPaste::pasteFormatted(SourceKind kind) {
    constexpr std::int32_t ribbonMs = 1000;
    if (kind == SourceKind::Range) {
        showSlide();
        if (isOld_) {
            leaveBlankLayout();
            selectLastShape(slide());
        }
        PasteWithSourceFormatting();
    } else if (isOld_) {
        slide().get("Shapes").call("PasteSpecial", arg("DataType", number::defaultData));
    } else {
        executeSourceFormatting();
        session::WaitMilliseconds(session_, ribbonMs);
    }
}

/// The ribbon's command runs on its own after the call; the pauses around it are rounds of events.
void SelectionPaste::PasteWithSourceFormatting() {
    constexpr std::int32_t rounds = 5000;
    const Object target = slide();
    target.call("Select");
    session::PumpEvents(session_, rounds);
    target.call("Select");
    session::PumpEvents(session_, rounds);
    executeSourceFormatting();
    session_.PowerPointApp.get("CommandBars").call("ReleaseFocus");
    session::PumpEvents(session_, rounds);
}

void SelectionPaste::putBack(std::int32_t viewType) {
    office::ContinueOnFailure scope;
    scope.attempt([&] {
        if (const auto lateFailure = session::PutBackView(window(), viewType))
            session::ShowWarningNotice(session_.notices, lateFailure->description());
    });
    scope.attempt([&] { session::SetExcelWindow(session_, session::ExcelWindow::Maximised); });
}

}  // namespace

void PasteSelectionToSlide(OfficeSession& session, SlidePaste mode) {
    SelectionPaste(session, mode).run();
}

}  // namespace powerpoint
