#include "office/item_remarks.h"

#include <fmt/format.h>

#include <algorithm>

namespace office {

namespace {

std::string shownName(const PasteItem& item) {
    if (item.source.chart.empty() && !item.sharesName) return fmt::format("\"{}\"", item.name);
    return fmt::format("\"{}\" on sheet \"{}\"", item.name, item.source.sheet);
}

}  // namespace

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

void ItemRemarks::add(const Text& text, const PasteItem& item) {
    auto known = std::find_if(names_.begin(), names_.end(),
                              [&](const auto& said) { return said.first.one == text.one; });
    if (known == names_.end()) known = names_.insert(known, {text, {}});
    std::vector<std::string>& names = known->second;
    std::string name = shownName(item);
    if (std::find(names.begin(), names.end(), name) == names.end())
        names.push_back(std::move(name));
}

std::vector<std::string> ItemRemarks::lines() const {
    std::vector<std::string> lines;
    for (const auto& [text, names] : names_) {
        std::string line = names.size() > 1 ? text.many : text.one;
        lines.push_back(line.replace(line.find("{}"), 2, enumerated(names)));
    }
    return lines;
}

}  // namespace office
