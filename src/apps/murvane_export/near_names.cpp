#include "apps/murvane_export/near_names.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "office/text.h"

namespace unattended {

namespace {

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

}  // namespace

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

}  // namespace unattended
