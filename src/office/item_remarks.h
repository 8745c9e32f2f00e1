#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/suite.h"

namespace office {

/// The first few of many names, which is enough to know which they are.
[[nodiscard]] std::string enumerated(const std::vector<std::string>& names);

/// What has to be said about items, one line for all of which the same holds.
class ItemRemarks {
public:
    /// A line about one item and one about several, with "{}" for their names.
    struct Text {
        std::string one;
        std::string many;
    };

    /// Once for an item, however often it is added.
    void add(const Text& text, const PasteItem& item);
    /// In the order in which they were first added.
    [[nodiscard]] std::vector<std::string> lines() const;

private:
    std::vector<std::pair<Text, std::vector<std::string>>> names_;
};

}  // namespace office
