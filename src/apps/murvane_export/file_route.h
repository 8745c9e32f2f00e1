#pragma once

#include <string>
#include <vector>

#include "apps/murvane_export/options.h"

namespace unattended {

/// How the presentation or the document of a run is written.
struct FileRoute {
    /// As a file, in which all that is not ours stays as it was; otherwise by the suite, which
    /// reads it and writes it anew.
    bool isFile = false;
    /// What the user has to know beforehand, a sentence each.
    std::vector<std::string> remarks;
};

/// Looks at the presentation, or at the document, that the options name. `RunError` for one that
/// nothing here opens: encrypted, damaged, or larger than is taken.
[[nodiscard]] FileRoute deckRouteFor(const Options& options);
[[nodiscard]] FileRoute documentRouteFor(const Options& options);

}  // namespace unattended
