#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "apps/murvane_export/documents.h"
#include "apps/murvane_export/options.h"
#include "catalogue/export_list.h"
#include "office/failure.h"
#include "office/suite.h"
#include "session/office_session.h"

namespace unattended {

/// What a job works on.
struct JobScene {
    const Options& options;
    session::OfficeSession& session;
    OpenedDocuments& documents;
    /// The suite itself, whose Word is a live one.
    office::Suite& liveSuite;
    catalogue::ExportList& list;
    /// None: a failing item ends the run.
    std::function<void(const catalogue::ExportItem& row, const office::Failure& failure)>
        onFailedItem;
};

/// What a run does for one destination, between the review and the output.
class Job {
public:
    explicit Job(const JobScene& scene) : scene_(scene) {}
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;
    virtual ~Job() = default;

    /// Opens or makes what the items go into. `RunError` if it can't be opened.
    virtual void open() {}
    /// Gives the items their turn, as the options dialog and its button do, and writes what has
    /// come of it to the output's neighbour. How many have had their turn; the list's selected row
    /// is none once all have.
    virtual std::int32_t exportTo(const std::string& neighbour) = 0;

protected:
    JobScene scene_;
};

/// The job of a destination.
[[nodiscard]] std::unique_ptr<Job> makeJob(catalogue::Destination destination,
                                           const JobScene& scene);

/// What the review and the dialogs would have been told.
[[nodiscard]] catalogue::ExportChoices choicesFor(catalogue::Destination destination,
                                                  const Options& options);

}  // namespace unattended
