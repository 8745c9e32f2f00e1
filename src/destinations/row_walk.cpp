#include "destinations/row_walk.h"

#include <deque>
#include <utility>

namespace destinations {

namespace {

/// Whether an item has failed by something that has been closed; so would all others.
bool lacksWhatItNeeds(const RowBatch& batch) {
    return batch.needed != nullptr && batch.needed->isOneClosed();
}

/// What fails for want of its workbook says anything but that.
catalogue::OnFailedItem onFailureOfItem(const RowBatch& batch) {
    if (!batch.onFailedItem || batch.needed == nullptr) return batch.onFailedItem;
    return [&batch](const auto& row, const auto& failure) {
        if (batch.needed->areOpen()) batch.onFailedItem(row, failure);
    };
}

}  // namespace

std::int32_t takenRowsOfFiles(session::OfficeSession& session, const catalogue::ExportList& list,
                              const catalogue::ExportChoices& choices) {
    return choices.predefinedSlides ? 0 : catalogue::CountTakenRows(session, list, {});
}

WalkResult walkRows(RowBatch& batch,
                    const std::function<void(const catalogue::TakenRow& taken,
                                             const catalogue::ExportItem& row)>& exportRow) {
    const auto rows = catalogue::takeRows(batch.session, batch.list, {});
    const std::ptrdiff_t selected = batch.list.selected;
    const catalogue::OnFailedItem tell = onFailureOfItem(batch);
    WalkResult result;
    result.total = static_cast<std::int32_t>(rows.size());
    for (const catalogue::TakenRow& taken : rows) {
        if (catalogue::isToEnd(batch.session, batch.needed)) break;
        const catalogue::ExportItem& row = batch.list.rows[taken.index];
        batch.list.selected = static_cast<std::ptrdiff_t>(taken.index);
        const bool went = catalogue::letHaveTurn(tell, row, [&] {
            catalogue::ProgressStep(batch.session, result.done + 1, result.total);
            exportRow(taken, row);
        });
        if (!went && lacksWhatItNeeds(batch)) break;
        ++result.done;
        if (!went) ++result.failed;
    }
    batch.list.selected = selected;
    return result;
}

WalkResult walkRowsAhead(
    RowBatch& batch,
    const std::function<std::function<void()>(const catalogue::TakenRow& taken,
                                              const catalogue::ExportItem& row)>& begin) {
    // More would only hold more pictures.
    constexpr std::size_t mostAhead = 4;
    struct Begun {
        std::size_t index;
        std::function<void()> end;
    };
    std::deque<Begun> begun;
    const catalogue::OnFailedItem tell = onFailureOfItem(batch);
    std::int32_t failed = 0;
    std::int32_t lost = 0;
    // Where it fails, the row that it ends is the one at hand.
    const auto endFirst = [&] {
        const Begun first = std::move(begun.front());
        begun.pop_front();
        const std::ptrdiff_t atHand = batch.list.selected;
        batch.list.selected = static_cast<std::ptrdiff_t>(first.index);
        if (!catalogue::letHaveTurn(tell, batch.list.rows[first.index], first.end))
            ++(lacksWhatItNeeds(batch) ? lost : failed);
        batch.list.selected = atHand;
    };
    WalkResult result =
        walkRows(batch, [&](const catalogue::TakenRow& taken, const catalogue::ExportItem& row) {
            if (begun.size() == mostAhead) endFirst();
            begun.push_back({taken.index, begin(taken, row)});
        });
    while (!begun.empty()) endFirst();
    result.failed += failed;
    result.done -= lost;
    return result;
}

WalkResult walkAndTell(session::OfficeSession& session, catalogue::ExportList& list,
                       catalogue::NeededDocuments& needed,
                       const std::function<WalkResult(RowBatch& batch)>& exportRows) {
    WalkResult result;
    catalogue::exportAndTellOfFailed(session, [&](catalogue::FailedItems& failed) {
        RowBatch batch{session, list,
                       [&](const auto& row, const auto& failure) { failed.add(row, failure); },
                       &needed};
        result = exportRows(batch);
        // Ahead of every notice: whoever has closed something may go on writing there meanwhile.
        needed.letGo();
        session.progress.unload();
        if (result.wasCancelled())
            catalogue::TellEnded(session, &needed, result.done - result.failed, result.total);
    });
    return result;
}

}  // namespace destinations
