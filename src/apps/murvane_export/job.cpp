#include "apps/murvane_export/job.h"

#include "catalogue/needed_documents.h"
#include "catalogue/row_copies.h"
#include "destinations/html_export.h"
#include "destinations/image_files.h"
#include "destinations/pdf_run.h"
#include "destinations/word_batch.h"
#include "office/at_end.h"
#include "office/files.h"
#include "powerpoint/formats.h"
#include "session/alerts_off.h"
#include "session/powerpoint_session.h"
#include "session/workbook_store.h"

namespace unattended {

namespace {

using catalogue::Destination;

/// What a job can't do without that its user may close meanwhile. Null in a suite of its own.
std::unique_ptr<catalogue::NeededDocuments> neededBy(const JobScene& scene, const char* application,
                                                     const char* noun,
                                                     const office::Object& target) {
    if (!scene.options.attach) return nullptr;
    auto needed = std::make_unique<catalogue::NeededDocuments>(scene.session);
    needed->addTarget(application, noun, target);
    return needed;
}

/// An export that ended by it, and has said so, makes no file.
void requireOpen(const catalogue::NeededDocuments* needed) {
    if (needed != nullptr && !needed->closed().empty()) office::refuse("Export", needed->closed());
}

class SlidesJob : public Job {
public:
    using Job::Job;

    void open() override {
        if (scene_.options.attach) return;
        if (scene_.options.deck.empty()) {
            scene_.documents.newPresentation();
        } else {
            scene_.documents.openPresentation(office::pathOf(scene_.options.deck));
        }
    }

    void exportTo(const std::string& neighbour) override;
};

/// The placement of the options stands in the store of the workbook, where the export looks for it,
/// as long as this lives. What they leave out keeps what the workbook has.
class PlacementForARun {
public:
    PlacementForARun(session::OfficeSession& session, const Options& options)
        : session_(session),
          before_(session::readStoredPlacement(session)) {
        session::Placement placement = before_;
        const auto take = [](const auto& wanted, std::optional<double>& held) {
            if (wanted && !wanted->isWorkbooks) held = wanted->share;
        };
        take(options.top, placement.top);
        take(options.width, placement.width);
        take(options.left, placement.left);
        session::writeStoredPlacement(session, placement);
    }
    ~PlacementForARun() {
        office::asFarAsPossible([this] { session::writeStoredPlacement(session_, before_); });
    }
    PlacementForARun(const PlacementForARun&) = delete;
    PlacementForARun& operator=(const PlacementForARun&) = delete;

private:
    session::OfficeSession& session_;
    session::Placement before_;
};

void SlidesJob::exportTo(const std::string& neighbour) {
    const Options& options = scene_.options;
    session::AttachPowerPoint(scene_.session);
    const session::AlertsOff quiet(scene_.session.ExcelApp);
    const catalogue::ExportChoices choices = choicesFor(Destination::PowerPoint, options);
    powerpoint::Batch batch{scene_.session, scene_.list, choices, scene_.onFailedItem};
    batch.options = {.titles = options.titles.value_or(false),
                     .sourceLine = options.source,
                     .shadow = options.shadow,
                     .look = options.look,
                     .placesShapes = options.placesShapes()};
    std::optional<PlacementForARun> placement;
    if (options.placesShapes()) placement.emplace(scene_.session, options);
    batch.tidiesUpAfterFailure = options.attach;
    const auto needed = neededBy(scene_, "PowerPoint.Application", "presentation",
                                 scene_.session.SessionPresentation);
    batch.needed = needed.get();
    // All slides have got what they get by then, and the presentation may be the user's own.
    std::optional<office::Failure> lateFailure;
    batch.onLateFailure = [&](const office::Failure& failure) { lateFailure = failure; };
    done_ = powerpoint::ExportRows(batch);
    placement.reset();
    scene_.list.selected = -1;
    scene_.documents.removeFirstSlides();
    requireOpen(needed.get());
    if (lateFailure) throw office::Failure(*lateFailure);
    scene_.session.SessionPresentation.call("SaveCopyAs", neighbour);
}

class WordJob : public Job {
public:
    using Job::Job;

    void open() override {
        if (scene_.options.attach) return;
        if (scene_.options.document.empty()) {
            scene_.documents.newDocument();
        } else {
            scene_.documents.openDocument(office::pathOf(scene_.options.document));
        }
    }

    void exportTo(const std::string& neighbour) override {
        const Options& options = scene_.options;
        const auto needed =
            neededBy(scene_, "Word.Application", "document", scene_.session.SessionDocument);
        destinations::RowBatch batch{scene_.session, scene_.list, scene_.onFailedItem,
                                     needed.get()};
        const auto walk = destinations::ExportRowsToWord(batch, options.format,
                                                         {.sameWidth = options.sameWidth,
                                                          .caption = options.captionsBelow,
                                                          .shadow = options.shadow});
        done_ = walk.done;
        if (needed && walk.wasCancelled() && needed->isOneClosed())
            catalogue::TellEnded(scene_.session, needed.get(), walk.done - walk.failed, walk.total);
        requireOpen(needed.get());
        scene_.session.SessionDocument.call("SaveCopyAs", neighbour);
    }
};

class PdfJob : public Job {
public:
    explicit PdfJob(const JobScene& scene)
        : Job(scene),
          live_(scene.liveSuite, scene.session.host, scene.session.notices,
                scene.session.progress) {}

    void exportTo(const std::string& neighbour) override {
        const Options& options = scene_.options;
        live_.ExcelApp = scene_.session.ExcelApp;
        live_.ActiveBook = scene_.session.ActiveBook;
        destinations::RowBatch batch{live_, scene_.list, scene_.onFailedItem};
        const auto result =
            destinations::ExportRowsToPdf(batch,
                                          {.pageTitles = options.titles.value_or(true),
                                           .includePath = options.source,
                                           .coverPage = !options.coverText.empty(),
                                           .sizeFactor = options.sizePercent,
                                           .coverText = options.coverText},
                                          neighbour);
        done_ = result.walk.done;
    }

private:
    /// Pages are made by a Word that draws.
    session::OfficeSession live_;
};

class HtmlJob : public Job {
public:
    using Job::Job;

    void exportTo(const std::string& neighbour) override {
        // 100 is 1,000 pixels, as in the dialog.
        constexpr double percentPx = 10;
        const Options& options = scene_.options;
        destinations::RowBatch batch{scene_.session, scene_.list, scene_.onFailedItem};
        const destinations::HtmlOptions html{.useTitles = options.titles.value_or(true),
                                             .widthPx = options.sizePercent * percentPx,
                                             .skipLines = options.blankLines,
                                             .folder = neighbour};
        const auto result = options.sameWidth ? destinations::ExportRowsToHtmlAsImages(batch, html)
                                              : destinations::PublishRowsToHtml(batch, html);
        done_ = result.walk.done;
    }
};

class ImagesJob : public Job {
public:
    using Job::Job;

    void exportTo(const std::string& neighbour) override {
        using destinations::FileNames;
        const Options& options = scene_.options;
        destinations::RowBatch batch{scene_.session, scene_.list, scene_.onFailedItem};
        const auto result = destinations::ExportRowsToImageFiles(
            batch, {.format = options.imageFormat,
                    .names = options.numbersFiles ? FileNames::Numerator : FileNames::NameAndSheet,
                    .folder = neighbour,
                    .replaces = false});
        done_ = result.done;
    }
};

}  // namespace

std::unique_ptr<Job> makeJob(Destination destination, const JobScene& scene) {
    switch (destination) {
        case Destination::Word:
            return std::make_unique<WordJob>(scene);
        case Destination::Pdf:
            return std::make_unique<PdfJob>(scene);
        case Destination::Html:
            return std::make_unique<HtmlJob>(scene);
        case Destination::ImageFiles:
            return std::make_unique<ImagesJob>(scene);
        default:
            return std::make_unique<SlidesJob>(scene);
    }
}

catalogue::ExportChoices choicesFor(Destination destination, const Options& options) {
    const bool isSlides = destination == Destination::PowerPoint;
    catalogue::ExportChoices choices;
    choices.destination = destination;
    choices.predefinedSlides = isSlides && options.predefinedSlides;
    choices.refusesReadOnly = isSlides && options.attach;
    if (isSlides || destination == Destination::Word) choices.format = options.format;
    choices.areImages = options.sameWidth;
    return choices;
}

}  // namespace unattended
