#include "office/package/workbook/paste_remarks.h"

#include <fmt/format.h>

#include "office/item_remarks.h"
#include "office/package/workbook/object_source.h"
#include "office/package/workbook/source_chart.h"

namespace office::package {

namespace {

/// Why an item can't be pasted in this form; empty if it can.
std::string obstacleTo(PasteAs as, const PasteItem& item, WorkbookFiles& workbooks,
                       bool sheetAlone) {
    const bool isChart = item.source.kind == CopySource::Kind::Chart;
    if (isChart && (as == PasteAs::Default || as == PasteAs::Linked))
        return findChart(item.source, workbooks).obstacle;
    const bool isObject = as == PasteAs::Embedded || as == PasteAs::Linked;
    return isObject ? objectObstacle(as, item.source, workbooks, sheetAlone) : std::string();
}

/// What becomes of items that can't be pasted in a form.
struct Outcome {
    const char* one;
    const char* many;
};

const Outcome& outcomeOf(PasteAs as) {
    static constexpr Outcome picture = {"{} will be a picture", "Each of {} will be a picture"};
    static constexpr Outcome noLink = {"{} can't be linked", "None of {} can be linked"};
    static constexpr Outcome notEmbedded = {"{} can't be embedded", "None of {} can be embedded"};
    if (as == PasteAs::Linked) return noLink;
    return as == PasteAs::Embedded ? notEmbedded : picture;
}

}  // namespace

std::vector<std::string> pasteRemarks(PasteAs as, const std::vector<PasteItem>& items,
                                      WorkbookFiles& workbooks, bool sheetAlone) {
    const Outcome& outcome = outcomeOf(as);
    ItemRemarks remarks;
    for (const PasteItem& item : items) {
        const std::string obstacle = obstacleTo(as, item, workbooks, sheetAlone);
        if (obstacle.empty()) continue;
        remarks.add({.one = fmt::format("{}: {}.", outcome.one, obstacle),
                     .many = fmt::format("{}: {}.", outcome.many, obstacle)},
                    item);
    }
    return remarks.lines();
}

}  // namespace office::package
