#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "apps/murvane_export/options.h"
#include "catalogue/export_choices.h"
#include "office/failure.h"
#include "session/office_session.h"

namespace unattended {

/// What became of the items of one target.
struct Outcome {
    /// Items that have had their turn.
    std::int32_t taken = 0;
    /// Of them those that failed or were turned away with a notice, by their rows.
    std::set<std::ptrdiff_t> missing;
    /// A line for each item that failed.
    std::vector<std::string> failures;

    /// All items had their turn in vain.
    [[nodiscard]] bool isEmpty() const {
        return taken > 0 && missing.size() >= static_cast<std::size_t>(taken);
    }
};

/// A sentence about a failure, and one about the item that it befell.
[[nodiscard]] std::string reportOf(const office::Failure& failure);
[[nodiscard]] std::string describe(const catalogue::ExportItem& row,
                                   const office::Failure& failure);

/// That an output lacks items, or would lack them if it were made, and which, in lines.
[[nodiscard]] std::string linesOfMissing(const Outcome& outcome, const std::string& file,
                                         bool isMade);

/// How many items of a target had their turn before the list's selected one.
[[nodiscard]] std::int32_t turnsAhead(session::OfficeSession& session,
                                      const catalogue::ExportList& list, const Options& options,
                                      const Target& target);

/// The user's own documents keep the items that they have got when a run ends early. Words about
/// them; empty if there are none. `outcomes` are those of the options' targets, in their order.
[[nodiscard]] std::string inOpenDocuments(session::OfficeSession& session,
                                          const catalogue::ExportList& list, const Options& options,
                                          const std::vector<Outcome>& outcomes);

}  // namespace unattended
