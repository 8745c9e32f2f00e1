#pragma once

#include <set>
#include <string>

#include "apps/murvane_export/options.h"

namespace unattended {

/// Which of the options that the caller has given don't go with the others. `given` are their
/// names, "--cover". An option that nothing of the run would heed is a slip of the caller's, and
/// refused too. `UsageError`.
void requireFitting(const Options& options, const std::set<std::string>& given);

}  // namespace unattended
