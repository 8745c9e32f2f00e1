#include "catalogue/failed_items.h"

#include <fmt/format.h>

#include <algorithm>

namespace catalogue {

void FailedItems::add(const ExportItem& row, const office::Failure& failure) {
    lines_.push_back(
        fmt::format("{}: {}", row.isChartSheet() ? row.sheet : row.name, failure.description()));
}

void FailedItems::tell(session::OfficeSession& session) const {
    if (lines_.empty()) return;
    /// More than these nobody reads, and a notice has no more room.
    constexpr std::size_t shown = 8;
    std::string text = fmt::format("{} item(s) could not be exported:", lines_.size());
    for (std::size_t i = 0; i < std::min(shown, lines_.size()); ++i) text += "\r" + lines_[i];
    if (lines_.size() > shown) text += fmt::format("\rand {} more", lines_.size() - shown);
    session::ShowWarningNotice(session.notices, text);
}

}  // namespace catalogue
