#include "apps/murvane_export/item_selection.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <optional>
#include <utility>

#include "apps/murvane_export/errors.h"
#include "office/text.h"

namespace unattended {

namespace {

using catalogue::ExportItem;
using catalogue::ExportList;
using SameText = std::function<bool(std::string_view, std::string_view)>;

constexpr std::size_t most = 3;

/// Letters to change, add or drop to make one text the other.
std::size_t editDistance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t changed = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

std::size_t distance(std::string_view wanted, std::string_view name) {
    const std::string lowered = office::lowerCase(name);
    const std::size_t whole = editDistance(wanted, lowered);
    return std::min(whole, editDistance(wanted, lowered.substr(0, lowered.rfind('@'))));
}

/// Up to three of `known` that `wanted` may be a slip of: the nearest first, none that has little
/// in common with it. A known name `NAME@SHEET` is compared by its part ahead of the "@" as well.
std::vector<std::string> nearNames(std::string_view wanted, const std::vector<std::string>& known) {
    const std::string lowered = office::lowerCase(wanted);
    const std::size_t farthest = std::max<std::size_t>(1, lowered.size() / 3);
    std::vector<std::pair<std::size_t, std::string>> near;
    for (const std::string& name : known) {
        const std::size_t far = distance(lowered, name);
        if (far <= farthest) near.emplace_back(far, name);
    }
    std::stable_sort(near.begin(), near.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });

    std::vector<std::string> names;
    for (std::size_t i = 0; i < near.size() && i < most; ++i) names.push_back(near[i].second);
    return names;
}

std::string fullName(const ExportItem& row) {
    return row.isChartSheet() ? row.sheet : row.name + "@" + row.sheet;
}

std::vector<std::size_t> matches(const ExportList& list, std::string_view name,
                                 std::string_view sheet, const SameText& same) {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        const ExportItem& row = list.rows[i];
        const bool isNamed = same(itemName(row), name) || same(row.name, name);
        if (isNamed && (sheet.empty() || same(row.sheet, sheet))) found.push_back(i);
    }
    return found;
}

/// Of the sheets' own names that lead to another sheet, those that are called so.
std::vector<std::size_t> namedWithTheirSheets(const ExportList& list, std::string_view name,
                                              std::string_view sheet) {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        const ExportItem& row = list.rows[i];
        if (row.isRange() && office::sameIgnoringCase(session::nameWithoutSheet(row.name), name) &&
            (sheet.empty() || office::sameIgnoringCase(row.sheet, sheet)))
            found.push_back(i);
    }
    return found;
}

std::string quoted(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text += fmt::format("{}\"{}\"", text.empty() ? "" : ", ", name);
    }
    return text;
}

[[noreturn]] void complainUnknown(const ExportList& list, const std::string& reference) {
    std::vector<std::string> known;
    for (const ExportItem& row : list.rows) known.push_back(fullName(row));
    const std::vector<std::string> near = nearNames(reference, known);
    throw UsageError(fmt::format("The workbook has no item \"{}\". {}", reference,
                                 near.empty()
                                     ? std::string("Run murvane-export --list to see its items.")
                                     : fmt::format("Did you mean {}?", quoted(near))));
}

/// The row, or nothing if there is none. `UsageError` if there are several.
std::optional<std::size_t> tryFind(const ExportList& list, std::string_view name,
                                   std::string_view sheet) {
    std::vector<std::size_t> found = matches(list, name, sheet, std::equal_to<>());
    if (found.empty()) found = matches(list, name, sheet, office::sameIgnoringCase);
    if (found.empty()) {
        found = namedWithTheirSheets(list, name, sheet);
    }
    if (found.empty()) return std::nullopt;
    if (found.size() > 1) {
        std::vector<std::string> candidates;
        candidates.reserve(found.size());
        for (const std::size_t index : found) candidates.push_back(fullName(list.rows[index]));
        throw UsageError(fmt::format("\"{}\" is the name of {} items. Say which one: {}.", name,
                                     found.size(), quoted(candidates)));
    }
    return found.front();
}

/// Names may hold "@" themselves, so the whole text is tried as a name first.
std::optional<std::size_t> tryFindNameAtSheet(const ExportList& list, std::string_view reference) {
    if (const auto whole = tryFind(list, reference, {})) return whole;
    for (auto at = reference.rfind('@'); at != std::string_view::npos && at > 0;
         at = reference.rfind('@', at - 1)) {
        const auto found = tryFind(list, reference.substr(0, at), reference.substr(at + 1));
        if (found) return found;
    }
    return std::nullopt;
}

/// The rows that one reference means; none if it means nothing.
std::vector<std::size_t> tryFindReference(const ExportList& list, std::string_view reference) {
    if (reference == session::chartSheetText) {
        return matches(list, reference, {}, std::equal_to<>());
    }
    if (const auto found = tryFindNameAtSheet(list, reference)) return {*found};
    return {};
}

std::vector<std::string> splitAtCommas(std::string_view text) {
    std::vector<std::string> parts(1);
    bool isQuoted = false;
    for (const char c : text) {
        if (c == '"') {
            isQuoted = !isQuoted;
        } else if (c == ',' && !isQuoted) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

}  // namespace

const std::string& itemName(const ExportItem& row) {
    return row.isChartSheet() ? row.sheet : row.name;
}

std::size_t findItem(const ExportList& list, std::string_view name, std::string_view sheet) {
    if (const auto found = tryFind(list, name, sheet)) return *found;
    complainUnknown(list, sheet.empty() ? std::string(name) : fmt::format("{}@{}", name, sheet));
}

std::vector<std::size_t> findItems(const ExportList& list, const std::vector<std::string>& texts) {
    std::vector<std::size_t> found;
    const auto add = [&](std::size_t index) {
        if (std::find(found.begin(), found.end(), index) == found.end()) found.push_back(index);
    };
    for (const std::string& text : texts) {
        const std::vector<std::size_t> whole = tryFindReference(list, text);
        std::for_each(whole.begin(), whole.end(), add);
        if (!whole.empty()) continue;
        for (const std::string& part : splitAtCommas(text)) {
            const std::string_view reference = office::trim(part);
            if (reference.empty()) continue;
            const std::vector<std::size_t> meant = tryFindReference(list, reference);
            if (meant.empty()) complainUnknown(list, std::string(reference));
            std::for_each(meant.begin(), meant.end(), add);
        }
    }
    return found;
}

void checkOnly(ExportList& list, const std::vector<std::size_t>& indices) {
    for (ExportItem& row : list.rows) row.checked = false;
    for (const std::size_t index : indices) list.rows.at(index).checked = true;
}

void checkAll(ExportList& list) {
    for (ExportItem& row : list.rows) row.checked = !row.hasSeveralAreas && !row.isMissing;
}

void moveToTop(ExportList& list, const std::vector<std::size_t>& indices) {
    std::vector<ExportItem> ordered;
    ordered.reserve(list.rows.size());
    for (const std::size_t index : indices) ordered.push_back(list.rows.at(index));
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        if (std::find(indices.begin(), indices.end(), i) == indices.end()) {
            ordered.push_back(list.rows[i]);
        }
    }
    list.rows = std::move(ordered);
}

}  // namespace unattended
