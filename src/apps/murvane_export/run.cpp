#include "apps/murvane_export/run.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "apps/murvane_export/documents.h"
#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/file_suite.h"
#include "apps/murvane_export/item_listing.h"
#include "apps/murvane_export/item_selection.h"
#include "apps/murvane_export/job.h"
#include "apps/murvane_export/order.h"
#include "apps/murvane_export/outcome.h"
#include "apps/terminal.h"
#include "apps/terminal_text.h"
#include "catalogue/export_run.h"
#include "catalogue/inventory.h"
#include "catalogue/list_rows.h"
#include "catalogue/review.h"
#include "office/failure.h"
#include "office/failure_patterns.h"
#include "office/files.h"
#include "session/launcher.h"

namespace unattended {

namespace {

using catalogue::ExportItem;
using session::OfficeSession;

constexpr const char* interruptedText = "Interrupted; nothing was written.";
constexpr const char* brokenOffText =
    "Broken off; no file was written, and what was half done stays in the open documents.";

/// The caller pressed Ctrl-C, or asked by a signal. Says what is there.
class Interrupted : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

apps::Answering answeringFor(const Options& options, const apps::Console& console) {
    if (options.yes) return apps::Answering::Accepts;
    if (!console.canAsk()) return apps::Answering::Refuses;
    // A review alone asks nothing, and the export could.
    return options.task == Task::Check ? apps::Answering::Accepts : apps::Answering::AsksUser;
}

/// What is told of names in documents must not drive the terminal.
void tell(apps::Console& console, const std::string& text) {
    console.writeError(apps::printable(text, "\n"));
}

/// Where in the neighbour something could not be written means nothing to the user.
std::string reasonFor(const office::Failure& failure, const std::filesystem::path& neighbour) {
    const std::string text = reportOf(failure);
    const std::size_t reason = text.rfind(": ");
    const bool isInside =
        text.starts_with(office::utf8Of(neighbour)) && reason != std::string::npos;
    return isInside ? text.substr(reason + 2) : text;
}

/// One run, from the open documents to the output.
class Run {
public:
    Run(const Options& options, const Surroundings& surroundings, Order& order,
        office::Suite& suite, office::Suite& liveSuite)
        : options_(options),
          surroundings_(surroundings),
          order_(order),
          line_(surroundings.console, !options.quiet),
          // A suite of our own is ended under the batch instead.
          progress_(line_, [this] { return options_.attach && surroundings_.isInterrupted(); }),
          notices_(surroundings.console, line_, answeringFor(options, surroundings.console),
                   " --yes goes on over this.",
                   [this] {
                       if (place_ < outcomes_.size())
                           outcomes_[place_].missing.insert(list_.selected);
                   }),
          session_(suite, surroundings.host, notices_, progress_),
          documents_(session_),
          liveSuite_(liveSuite) {}

    int perform();

private:
    void openDocuments();
    [[nodiscard]] catalogue::OnFailedItem failureHandler(std::size_t place);
    int workOnItems();
    void arrangeItems();
    int printItems();
    int reviewAlone();
    int exportItems();
    [[nodiscard]] catalogue::ReviewResult review();
    void runJob(std::size_t place);
    void letUserSee();
    void tellOfMissing(std::size_t place, bool isMade);
    int commit();
    void stopIfInterrupted() {
        if (surroundings_.isInterrupted()) throw Interrupted(whatIsThere());
    }
    [[nodiscard]] std::string whatIsThere();
    [[nodiscard]] std::string thereIfAnything();
    [[noreturn]] void complainAbout(std::size_t place, const office::Failure& failure);

    const Options& options_;
    const Surroundings& surroundings_;
    Order& order_;
    apps::StatusLine line_;
    apps::TerminalProgress progress_;
    apps::TerminalNotices notices_;
    OfficeSession session_;
    OpenedDocuments documents_;
    office::Suite& liveSuite_;
    std::string bookName_;
    catalogue::ExportList list_;
    std::vector<std::unique_ptr<Job>> jobs_;
    /// What became of each job.
    std::vector<Outcome> outcomes_;
    /// The job at hand; none ahead of the first one.
    std::size_t place_ = std::string::npos;
};

int Run::perform() {
    openDocuments();
    stopIfInterrupted();
    bookName_ = session_.ActiveBook.get("FullName").toText();
    if (options_.task == Task::List) return printItems();
    // The road to the main form, with the run in the form's place: it refuses a workbook that can't
    // take the store, and one without items in words that speak of the form.
    std::optional<int> result;
    session::CommandHandlers handlers;
    handlers.CountWorkbookItems = [&] {
        catalogue::CountWorkbookItems(session_);
        if (session_.ItemCount == 0)
            throw RunError(bookName_ + " has no chart and no named range that could be exported.");
    };
    handlers.ShowMainForm = [&] { result = workOnItems(); };
    session::Main(session_, session::mainFormCode, handlers);
    return result.value_or(exit_code::blocked);
}

void Run::openDocuments() {
    line_.show("Opening the documents");
    session_.Pictures = options_.pictures;
    if (options_.attach) {
        takeActiveDocuments(session_, options_);
        for (const auto& output : order_.outputs) {
            for (const auto* open : {&session_.SessionPresentation, &session_.SessionDocument}) {
                if (*open) output->requireOtherThan(office::pathOf(open->get("FullName").toText()));
            }
        }
    } else {
        documents_.openWorkbook(office::pathOf(options_.book));
        liveSuite_.expectTurns();
    }
    if (options_.task == Task::List) return;
    for (std::size_t place = 0; place < options_.targets.size(); ++place) {
        jobs_.push_back(
            makeJob(options_.targets[place].destination, {.options = options_,
                                                          .session = session_,
                                                          .documents = documents_,
                                                          .liveSuite = liveSuite_,
                                                          .list = list_,
                                                          .onFailedItem = failureHandler(place)}));
        jobs_.back()->open();
    }
    outcomes_.resize(jobs_.size());
}

/// With --keep-going the lines of a job are kept until its output is told of.
catalogue::OnFailedItem Run::failureHandler(std::size_t place) {
    if (!options_.keepGoing) return nullptr;
    return [this, place](const ExportItem& row, const office::Failure& failure) {
        if (!options_.attach) stopIfInterrupted();
        outcomes_[place].missing.insert(list_.selected);
        outcomes_[place].failures.push_back(describe(row, failure));
    };
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
    if (!surroundings_.console.writeOut(options_.json ? listAsJson(list_, bookName_)
                                                      : listAsTable(list_)))
        throw RunError(fmt::format("The list could not be written: {}.", std::strerror(errno)));
    return exit_code::done;
}

catalogue::ReviewResult Run::review() {
    std::vector<catalogue::ExportChoices> exports;
    for (const Target& target : options_.targets)
        exports.push_back(choicesFor(target.destination, options_));
    return catalogue::PreExportReview(session_, list_, exports);
}

int Run::reviewAlone() {
    const auto result = review();
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
    if (review() != catalogue::ReviewResult::Go) return exit_code::blocked;
    for (place_ = 0; place_ < jobs_.size(); ++place_) {
        stopIfInterrupted();
        runJob(place_);
    }
    stopIfInterrupted();
    line_.clear();
    return commit();
}

void Run::runJob(std::size_t place) {
    list_.selected = -1;
    const std::string neighbour = office::utf8Of(order_.outputs[place]->neighbour());
    try {
        jobs_[place]->exportTo(neighbour);
        outcomes_[place].taken = jobs_[place]->done();
    } catch (const office::SuiteLost&) {
        throw;
    } catch (const office::Failure& failure) {
        line_.clear();
        letUserSee();
        if (surroundings_.isInterrupted() && !options_.attach) throw;
        complainAbout(place, failure);
    }
    letUserSee();
}

void Run::complainAbout(std::size_t place, const office::Failure& failure) {
    const bool isOfItem = list_.selected >= 0;
    outcomes_[place].taken = isOfItem
                                 ? turnsAhead(session_, list_, options_, options_.targets[place])
                                 : jobs_[place]->done();
    const std::string there = thereIfAnything();
    // A disk that is full is no fault of the item at hand.
    if (!isOfItem || failure.is(office::FailureNumber::PathFileAccess))
        throw RunError(fmt::format("{} could not be made: {}{}",
                                   office::utf8Of(order_.outputs[place]->file()),
                                   reasonFor(failure, order_.outputs[place]->neighbour()), there));
    const ExportItem& row = list_.rows[static_cast<std::size_t>(list_.selected)];
    throw RunError(fmt::format(
        "Could not export {}{}\n--keep-going leaves such items out and saves the others.",
        describe(row, failure), there));
}

/// A line behind the words about a failure.
std::string Run::thereIfAnything() {
    const std::string there = office::orElse(
        [this] { return inOpenDocuments(session_, list_, options_, outcomes_); }, std::string());
    return there.empty() ? there : fmt::format("\n{}; no file was written.", there);
}

std::string Run::whatIsThere() {
    const std::string text = inOpenDocuments(session_, list_, options_, outcomes_);
    if (text.empty()) return interruptedText;
    return fmt::format("Interrupted: {}; no file was written.", text);
}

/// A batch may leave Excel without drawing; the user's own goes on without us.
void Run::letUserSee() {
    if (options_.attach) catalogue::RestoreScreenUpdating(session_);
}

void Run::tellOfMissing(std::size_t place, bool isMade) {
    if (outcomes_[place].missing.empty()) return;
    const std::string file = office::utf8Of(order_.outputs[place]->file());
    tell(surroundings_.console, linesOfMissing(outcomes_[place], file, isMade));
}

/// All outputs get their names, once each of them is complete and can have it, and the user is
/// told.
int Run::commit() {
    try {
        for (std::size_t place = 0; place < jobs_.size(); ++place) {
            // Empty slides or a template alone are no reason to replace a file.
            if (outcomes_[place].isEmpty()) order_.outputs[place]->failWithoutContent();
            order_.outputs[place]->requireCanCommit();
        }
    } catch (const RunError& error) {
        for (std::size_t place = 0; place < jobs_.size(); ++place) tellOfMissing(place, false);
        const bool isAlone = order_.outputs.size() == 1;
        throw RunError(std::string(error.what()) + (isAlone ? "" : "\nNo other output was made.") +
                       thereIfAnything());
    }
    int exitCode = exit_code::done;
    for (std::size_t place = 0; place < jobs_.size(); ++place) {
        const Outcome& outcome = outcomes_[place];
        if (!outcome.missing.empty()) exitCode = exit_code::failed;
        try {
            order_.outputs[place]->commit();
        } catch (const RunError& error) {
            tellOfMissing(place, false);
            tell(surroundings_.console, fmt::format("murvane-export: {}\n", error.what()));
            exitCode = exit_code::failed;
            continue;
        }
        tellOfMissing(place, true);
        if (outcome.missing.empty() && !options_.quiet) {
            surroundings_.console.writeError(fmt::format(
                "Exported {} item{} to {}\n", outcome.taken, outcome.taken == 1 ? "" : "s",
                office::utf8Of(order_.outputs[place]->file())));
        }
    }
    return exitCode;
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
    if (surroundings.isInterrupted()) throw Interrupted(interruptedText);
    for (const FileRoute* route : {&order.decks, &order.documents}) {
        for (const std::string& remark : route->remarks)
            tell(surroundings.console, "murvane-export: " + remark + "\n");
    }
    FileSuite withFiles(*suite, surroundings.host, options,
                        {.decks = order.decks.isFile, .documents = order.documents.isFile});
    return Run(options, surroundings, order, withFiles, *suite).perform();
}

}  // namespace

int run(const Options& options, const Surroundings& surroundings) {
    const auto complain = [&](const std::string& text, int exitCode) {
        tell(surroundings.console, "murvane-export: " + text + "\n");
        return exitCode;
    };
    try {
        return runInSuite(options, surroundings);
    } catch (const UsageError& error) {
        return complain(error.what(), exit_code::wrongUsage);
    } catch (const RunError& error) {
        return complain(error.what(), exit_code::failed);
    } catch (const Interrupted& interruption) {
        return complain(interruption.what(), exit_code::failed);
    } catch (const office::Failure& failure) {
        // An interruption takes the suite away under whatever is being done with it.
        const char* const ended = options.attach ? brokenOffText : interruptedText;
        return complain(surroundings.isInterrupted() ? ended : reportOf(failure),
                        exit_code::failed);
    } catch (const std::exception& error) {
        return complain(error.what(), exit_code::failed);
    }
}

}  // namespace unattended
