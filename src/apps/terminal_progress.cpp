#include "apps/terminal_progress.h"

#include <fmt/format.h>

#include <algorithm>

namespace apps {

void TerminalProgress::setLoadingValue(int percent) {
    loading_ = std::clamp(percent, 0, 100);
    line_.show(fmt::format("Reading the workbook  {}%", loading_));
}

void TerminalProgress::showItem(int item, int total) {
    line_.show(
        fmt::format("Exporting item {} of {}  {}%", item, total, item * 100 / std::max(total, 1)));
}

}  // namespace apps
