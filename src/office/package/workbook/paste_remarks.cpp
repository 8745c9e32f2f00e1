#include "office/package/workbook/paste_remarks.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

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

std::string shownName(const PasteItem& item) {
    if (item.source.chart.empty()) return fmt::format("\"{}\"", item.name);
    return fmt::format("\"{}\" on sheet \"{}\"", item.name, item.source.sheet);
}

/// The first few of many, which is enough to know which they are.
std::string enumerated(const std::vector<std::string>& names) {
    constexpr std::size_t most = 10;
    const std::size_t shown = names.size() > most ? most - 1 : names.size();
    std::string text;
    for (std::size_t i = 0; i < shown; ++i) {
        if (i > 0) text += i + 1 == names.size() ? " and " : ", ";
        text += names[i];
    }
    return names.size() > shown ? fmt::format("{} and {} more", text, names.size() - shown) : text;
}

}  // namespace

std::vector<std::string> pasteRemarks(PasteAs as, const std::vector<PasteItem>& items,
                                      WorkbookFiles& workbooks, bool sheetAlone) {
    std::vector<std::pair<std::string, std::vector<std::string>>> byReason;
    for (const PasteItem& item : items) {
        const std::string obstacle = obstacleTo(as, item, workbooks, sheetAlone);
        if (obstacle.empty()) continue;
        auto known = std::find_if(byReason.begin(), byReason.end(),
                                  [&](const auto& one) { return one.first == obstacle; });
        if (known == byReason.end()) known = byReason.insert(known, {obstacle, {}});
        known->second.push_back(shownName(item));
    }
    std::vector<std::string> remarks;
    for (const auto& [reason, names] : byReason) {
        const Outcome& outcome = outcomeOf(as);
        remarks.push_back(
            fmt::format("{}: {}.",
                        fmt::format(fmt::runtime(names.size() > 1 ? outcome.many : outcome.one),
                                    enumerated(names)),
                        reason));
    }
    return remarks;
}

}  // namespace office::package
