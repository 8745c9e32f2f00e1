#pragma once

#include <memory>
#include <vector>

#include "apps/murvane_export/captions_csv.h"
#include "apps/murvane_export/file_route.h"
#include "apps/murvane_export/options.h"
#include "apps/murvane_export/outputs.h"

namespace unattended {

/// What the files of a command line are and can become.
struct Order {
    std::vector<CaptionLine> captions;
    /// In the order of the options' targets; none without an export.
    std::vector<std::unique_ptr<Output>> outputs;
    FileRoute decks;
    FileRoute documents;
};

/// Looks at the files that the options name before a suite is started for them. `UsageError` and
/// `RunError` say what is wrong with one.
[[nodiscard]] Order checkOrder(const Options& options);

}  // namespace unattended
