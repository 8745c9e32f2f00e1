#include "catalogue/failed_items.h"

#include <fmt/format.h>

#include <algorithm>

#include "office/failure_patterns.h"

namespace catalogue {

bool letHaveTurn(const OnFailedItem& onFailedItem, const ExportItem& row,
                 const std::function<void()>& turn) {
    if (!onFailedItem) {
        turn();
        return true;
    }
    office::ContinueOnFailure scope;
    if (scope.attempt(turn)) return true;
    const office::Failure failure = *scope.lastFailure();
    if (failure.is(office::FailureNumber::PathFileAccess)) throw failure;
    onFailedItem(row, failure);
    return false;
}

void FailedItems::add(const ExportItem& row, const office::Failure& failure) {
    lines_.push_back(fmt::format("{}: {}", row.shownName(), failure.description()));
}

void FailedItems::add(const office::Failure& failure) {
    lines_.push_back("A picture: " + failure.description());
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

void exportAndTellOfFailed(session::OfficeSession& session,
                           const std::function<void(FailedItems& failed)>& runExport) {
    FailedItems failed;
    try {
        runExport(failed);
    } catch (const office::Failure&) {
        session.progress.unload();
        failed.tell(session);
        throw;
    }
    failed.tell(session);
}

}  // namespace catalogue
