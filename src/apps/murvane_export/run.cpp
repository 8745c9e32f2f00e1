#include "apps/murvane_export/run.h"

#include <fmt/format.h>

#include <fstream>
#include <memory>
#include <optional>
#include <sstream>
#include <vector>

#include "apps/murvane_export/captions_csv.h"
#include "apps/murvane_export/deck_file_suite.h"
#include "apps/murvane_export/deck_route.h"
#include "apps/murvane_export/documents.h"
#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/item_listing.h"
#include "apps/murvane_export/item_selection.h"
#include "apps/murvane_export/output_file.h"
#include "apps/terminal.h"
#include "apps/utf8.h"
#include "catalogue/export_run.h"
#include "catalogue/inventory.h"
#include "catalogue/list_rows.h"
#include "catalogue/review.h"
#include "office/failure.h"
#include "powerpoint/formats.h"
#include "session/launcher.h"
#include "session/powerpoint_session.h"
#include "session/workbook_store.h"

namespace unattended {

namespace {

using catalogue::ExportItem;
using session::OfficeSession;

/// The command that opens the main form.
constexpr const char* mainFormCode = "/112";
constexpr const char* interruptedText = "Interrupted; nothing was written.";

/// The caller pressed Ctrl-C, or asked by a signal.
class Interrupted : public std::exception {};

std::string readFile(const std::string& path) {
    const std::ifstream file(apps::pathOf(path), std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

apps::Answering answeringFor(const Options& options, const apps::Console& console) {
    // A review alone asks nothing: what it finds is the answer.
    if (options.yes || options.task == Task::Check) return apps::Answering::Accepts;
    return console.canAsk() ? apps::Answering::AsksUser : apps::Answering::Refuses;
}

/// What the command line asks for, checked before a suite is started for it.
struct Order {
    std::vector<CaptionLine> captions;
    std::unique_ptr<OutputFile> output;
    DeckRoute deck;
};

Order checkOrder(const Options& options) {
    Order order;
    if (!options.book.empty()) requireReadable(apps::pathOf(options.book), "workbook");
    if (!options.deck.empty()) requireReadable(apps::pathOf(options.deck), "presentation");
    if (!options.captionsFile.empty()) {
        requireReadable(apps::pathOf(options.captionsFile), "captions file");
        order.captions = readCaptions(readFile(options.captionsFile), options.captionsFile);
    }
    if (options.task == Task::Export) {
        order.output = std::make_unique<OutputFile>(
            apps::pathOf(options.output),
            options.overwrite ? IfExists::Overwrite : IfExists::Refuse);
        for (const std::string& input : {options.book, options.deck}) {
            if (!input.empty()) order.output->requireOtherThan(apps::pathOf(input));
        }
    }
    if (options.task != Task::List) order.deck = routeFor(options);
    return order;
}

/// Puts the placement of the options into the store of the workbook, where the export looks for it.
/// What they leave out keeps what the workbook has.
void storePlacement(session::OfficeSession& session, const Options& options) {
    session::Placement placement = session::readStoredPlacement(session);
    const auto take = [](const std::optional<PlacementValue>& wanted, std::optional<double>& held) {
        if (wanted) held = wanted->share;
    };
    take(options.top, placement.top);
    take(options.width, placement.width);
    take(options.left, placement.left);
    session::writeStoredPlacement(session, placement);
}

/// As the options dialog and its button do.
std::int32_t exportToSlides(powerpoint::Batch& batch, const Options& options) {
    session::AttachPowerPoint(batch.session);
    batch.session.ExcelApp.put("DisplayAlerts", false);
    batch.options = {.titles = options.titles,
                     .sourceLine = options.source,
                     .shadow = options.shadow,
                     .pictureStyle = options.pictureStyle,
                     .placesShapes = options.placesShapes()};
    if (options.placesShapes()) storePlacement(batch.session, options);
    return powerpoint::ExportRows(batch);
}

std::string describe(const ExportItem& row, const office::Failure& failure) {
    return fmt::format("\"{}\" on sheet \"{}\": {} ({}).", itemName(row), row.sheet,
                       failure.description(), failure.source());
}

/// One run, from the open documents to the output.
class Run {
public:
    Run(const Options& options, const Surroundings& surroundings, Order& order,
        office::Suite& suite)
        : options_(options),
          surroundings_(surroundings),
          order_(order),
          line_(surroundings.console, !options.quiet),
          progress_(line_),
          notices_(surroundings.console, line_, answeringFor(options, surroundings.console),
                   " --yes goes on over this."),
          session_(suite, surroundings.host, notices_, progress_),
          documents_(session_) {
        choices_.predefinedSlides = options.predefinedSlides;
        choices_.format = options.format;
    }

    int perform();

private:
    void openDocuments();
    int workOnItems();
    void arrangeItems();
    int printItems();
    int reviewAlone();
    int exportItems();
    void runBatch();
    void letUserSee();
    void save();
    int sumUp(int remarksOfBatch);
    void stopIfInterrupted() const {
        if (surroundings_.isInterrupted()) throw Interrupted();
    }

    const Options& options_;
    const Surroundings& surroundings_;
    Order& order_;
    apps::StatusLine line_;
    apps::TerminalProgress progress_;
    apps::TerminalNotices notices_;
    OfficeSession session_;
    OpenedDocuments documents_;
    std::string bookName_;
    catalogue::ExportList list_;
    catalogue::ExportChoices choices_;
    /// Items that have had their turn.
    std::int32_t taken_ = 0;
    /// A line for each item that failed.
    std::vector<std::string> failures_;
};

int Run::perform() {
    openDocuments();
    stopIfInterrupted();
    bookName_ = session_.ActiveBook.get("FullName").toText();
    if (options_.task == Task::List) return printItems();
    // The road to the main form, with the run in the form's place: it counts the items and refuses
    // a workbook that has none or that can't take the store.
    std::optional<int> result;
    session::CommandHandlers handlers;
    handlers.CountWorkbookItems = [&] { catalogue::CountWorkbookItems(session_); };
    handlers.ShowMainForm = [&] {
        session_.MainFormOpen = false;
        result = workOnItems();
    };
    session::Main(session_, mainFormCode, handlers);
    return result.value_or(exit_code::blocked);
}

void Run::openDocuments() {
    line_.show("Opening the documents");
    if (options_.attach) {
        takeActiveDocuments(session_, options_);
        if (order_.output && session_.SessionPresentation) {
            order_.output->requireOtherThan(session_.SessionPresentation.get("FullName").toText());
        }
    } else {
        documents_.openWorkbook(apps::pathOf(options_.book));
        if (options_.task == Task::List) return;
        if (options_.deck.empty()) {
            documents_.newPresentation();
        } else {
            documents_.openPresentation(apps::pathOf(options_.deck));
        }
    }
}

int Run::workOnItems() {
    catalogue::LoadItemsToForm(session_, list_);
    stopIfInterrupted();
    arrangeItems();
    return options_.task == Task::Check ? reviewAlone() : exportItems();
}

void Run::arrangeItems() {
    applyCaptions(list_, order_.captions, options_.captionsFile);
    if (options_.allItems) checkAll(list_);
    if (!options_.items.empty()) checkOnly(list_, findItems(list_, options_.items));
    if (!options_.order.empty()) moveToTop(list_, findItems(list_, options_.order));
    catalogue::RenumberIncludedRows(list_);
}

int Run::printItems() {
    catalogue::ListItems(session_, list_);
    stopIfInterrupted();
    arrangeItems();
    line_.clear();
    surroundings_.console.writeOut(options_.json ? listAsJson(list_, bookName_)
                                                 : listAsTable(list_));
    return exit_code::done;
}

int Run::reviewAlone() {
    const auto result = catalogue::PreExportReview(session_, list_, choices_);
    line_.clear();
    if (result != catalogue::ReviewResult::Go) return exit_code::blocked;
    if (!options_.quiet) {
        surroundings_.console.writeError(fmt::format(
            "{} of {} items can be exported.\n", catalogue::CountExportableRows(session_, list_),
            catalogue::CountCheckedRows(list_)));
    }
    return exit_code::done;
}

int Run::exportItems() {
    if (catalogue::PreExportReview(session_, list_, choices_) != catalogue::ReviewResult::Go) {
        return exit_code::blocked;
    }
    stopIfInterrupted();
    const int remarksBefore = notices_.remarks();
    runBatch();
    stopIfInterrupted();
    save();
    return sumUp(notices_.remarks() - remarksBefore);
}

void Run::runBatch() {
    list_.selected = -1;
    powerpoint::Batch batch{session_, list_, choices_, {}};
    if (options_.keepGoing) {
        batch.onFailedItem = [this](const ExportItem& row, const office::Failure& failure) {
            stopIfInterrupted();
            failures_.push_back(describe(row, failure));
        };
    }
    try {
        taken_ = exportToSlides(batch, options_);
    } catch (const office::SuiteLost&) {
        throw;
    } catch (const office::Failure& failure) {
        line_.clear();
        letUserSee();
        if (list_.selected < 0 || surroundings_.isInterrupted()) throw;
        const ExportItem& row = list_.rows[static_cast<std::size_t>(list_.selected)];
        throw RunError(fmt::format(
            "Could not export {}\n--keep-going leaves such items out and saves the others.",
            describe(row, failure)));
    }
    letUserSee();
    documents_.removeFirstSlides();
}

/// A batch may leave Excel without drawing; the user's own goes on without us.
void Run::letUserSee() {
    if (options_.attach) catalogue::RestoreScreenUpdating(session_);
}

void Run::save() {
    line_.show("Saving the presentation");
    const std::string neighbour = apps::utf8Of(order_.output->neighbour());
    session_.SessionPresentation.call("SaveCopyAs", neighbour);
    stopIfInterrupted();
    order_.output->commit();
    line_.clear();
}

int Run::sumUp(int remarksOfBatch) {
    const auto failed = static_cast<int>(failures_.size());
    if (remarksOfBatch + failed > 0) {
        std::string text = fmt::format("{} is incomplete: of {} items {} could not be exported{}\n",
                                       apps::utf8Of(order_.output->file()), taken_,
                                       remarksOfBatch + failed, failed == 0 ? "; see above." : ":");
        for (const std::string& line : failures_) text += "  " + line + "\n";
        surroundings_.console.writeError(text);
        return exit_code::failed;
    }
    if (!options_.quiet) {
        surroundings_.console.writeError(fmt::format("Exported {} item{} to {}\n", taken_,
                                                     taken_ == 1 ? "" : "s",
                                                     apps::utf8Of(order_.output->file())));
    }
    return exit_code::done;
}

std::string reportOf(const office::Failure& failure) {
    if (dynamic_cast<const office::SuiteLost*>(&failure) != nullptr) {
        return fmt::format("The office suite has gone ({}). Nothing was written; try again.",
                           failure.description());
    }
    return fmt::format("{} ({}, number {}).", failure.description(), failure.source(),
                       failure.number());
}

int runInSuite(const Options& options, const Surroundings& surroundings) {
    Order order = checkOrder(options);
    std::shared_ptr<office::Suite> suite;
    {
        apps::StatusLine line(surroundings.console, !options.quiet);
        line.show(options.attach ? "Looking for the running suite" : "Starting a suite");
        suite = options.attach ? surroundings.suites.attachToRunning()
                               : surroundings.suites.startPrivate();
    }
    if (surroundings.isInterrupted()) throw Interrupted();
    for (const std::string& remark : order.deck.remarks)
        surroundings.console.writeError("murvane-export: " + remark + "\n");
    if (!order.deck.isFile) return Run(options, surroundings, order, *suite).perform();
    DeckFileSuite withFiles(*suite, surroundings.host, options);
    return Run(options, surroundings, order, withFiles).perform();
}

}  // namespace

int run(const Options& options, const Surroundings& surroundings) {
    const auto complain = [&](const std::string& text, int exitCode) {
        surroundings.console.writeError("murvane-export: " + text + "\n");
        return exitCode;
    };
    try {
        return runInSuite(options, surroundings);
    } catch (const UsageError& error) {
        return complain(error.what(), exit_code::wrongUsage);
    } catch (const RunError& error) {
        return complain(error.what(), exit_code::failed);
    } catch (const Interrupted&) {
        return complain(interruptedText, exit_code::failed);
    } catch (const office::Failure& failure) {
        // An interruption takes the suite away under whatever is being done with it.
        return complain(surroundings.isInterrupted() ? interruptedText : reportOf(failure),
                        exit_code::failed);
    } catch (const std::exception& error) {
        return complain(error.what(), exit_code::failed);
    }
}

}  // namespace unattended
