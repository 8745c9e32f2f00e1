#include "apps/murvane_export/outcome.h"

#include <fmt/format.h>

#include <algorithm>

#include "apps/murvane_export/item_selection.h"
#include "apps/murvane_export/job.h"
#include "catalogue/export_run.h"
#include "office/failure_patterns.h"

namespace unattended {

namespace {

/// Where a failure comes from helps to find its cause, unless it is a sentence of our own, as those
/// about files are.
std::string withOrigin(const office::Failure& failure, const std::string& origin) {
    if (failure.isRefusal() || failure.is(office::FailureNumber::PathFileAccess))
        return failure.sentence();
    return fmt::format("{} ({}).", failure.description(), origin);
}

}  // namespace

std::string reportOf(const office::Failure& failure) {
    if (dynamic_cast<const office::SuiteLost*>(&failure) != nullptr) {
        return fmt::format("The office suite has gone ({}). Nothing was written; try again.",
                           failure.description());
    }
    return withOrigin(failure, fmt::format("{}, number {}", failure.source(), failure.number()));
}

std::string describe(const catalogue::ExportItem& row, const office::Failure& failure) {
    return fmt::format("\"{}\" on sheet \"{}\": {}", itemName(row), row.sheet,
                       withOrigin(failure, failure.source()));
}

std::string linesOfMissing(const Outcome& outcome, const std::string& file, bool isMade) {
    std::string text = isMade ? fmt::format("{} is incomplete: of {} items ", file, outcome.taken)
                              : fmt::format("Of {} items for {} ", outcome.taken, file);
    text += fmt::format("{} could not be exported{}\n", outcome.missing.size(),
                        outcome.failures.empty() ? "; see above." : ":");
    for (const std::string& line : outcome.failures) text += "  " + line + "\n";
    return text;
}

std::int32_t turnsAhead(session::OfficeSession& session, const catalogue::ExportList& list,
                        const Options& options, const Target& target) {
    const auto choices = choicesFor(target.destination, options);
    const auto rows = office::orElse([&] { return catalogue::takeRows(session, list, choices); },
                                     std::vector<catalogue::TakenRow>());
    const auto selected = static_cast<std::size_t>(list.selected);
    const auto at = std::find_if(rows.begin(), rows.end(),
                                 [&](const auto& row) { return row.index == selected; });
    return static_cast<std::int32_t>(at - rows.begin());
}

std::string inOpenDocuments(session::OfficeSession& session, const catalogue::ExportList& list,
                            const Options& options, const std::vector<Outcome>& outcomes) {
    using catalogue::Destination;
    if (!options.attach) return {};
    std::string text;
    for (std::size_t place = 0; place < outcomes.size(); ++place) {
        const Outcome& outcome = outcomes[place];
        const Destination destination = options.targets[place].destination;
        const bool isSlides = destination == Destination::PowerPoint;
        const auto there = outcome.taken - static_cast<std::int32_t>(outcome.missing.size());
        if (there <= 0 || (!isSlides && destination != Destination::Word)) continue;
        const auto& target = isSlides ? session.SessionPresentation : session.SessionDocument;
        // Its user may have closed it.
        if (office::orElse([&] { return target.get("Name").toText(); }, std::string()).empty())
            continue;
        const auto choices = choicesFor(destination, options);
        text += fmt::format("{}{} of {} items are in the open {}", text.empty() ? "" : ", ", there,
                            catalogue::takeRows(session, list, choices).size(),
                            isSlides ? "presentation" : "document");
    }
    return text;
}

}  // namespace unattended
