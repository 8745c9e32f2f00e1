#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "apps/murvane_export/documents.h"
#include "apps/murvane_export/options.h"
#include "catalogue/export_choices.h"
#include "catalogue/failed_items.h"
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
    catalogue::OnFailedItem onFailedItem;
};

/// What a run does for one destination, between the review and the output.
class Job {
public:
    explicit Job(JobScene scene) : scene_(std::move(scene)) {}
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;
    virtual ~Job() = default;

    /// Opens or makes what the items go into. `RunError` if it can't be opened.
    virtual void open() {}
    /// Gives the items their turn, as the options dialog and its button do, and writes what has
    /// come of it to the output's neighbour. A failure at an item leaves it the list's selected
    /// row; otherwise there is none.
    virtual void exportTo(const std::string& neighbour) = 0;
    /// How many items have had their turn, once all have that will have one.
    [[nodiscard]] std::int32_t done() const { return done_; }

protected:
    JobScene scene_;
    std::int32_t done_ = 0;
};

/// The job of a destination.
[[nodiscard]] std::unique_ptr<Job> makeJob(catalogue::Destination destination,
                                           const JobScene& scene);

/// What the review and the dialogs would have been told.
[[nodiscard]] catalogue::ExportChoices choicesFor(catalogue::Destination destination,
                                                  const Options& options);

}  // namespace unattended
