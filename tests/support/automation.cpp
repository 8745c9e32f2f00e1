#include "support/automation.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace support {

using office::Value;

Value at(const Value& from, std::string_view path) {
    const std::size_t dot = path.find('.');
    const Value next = from.get(path.substr(0, dot));
    return dot == std::string_view::npos ? next : at(next, path.substr(dot + 1));
}

void expectMembers(const Value& object, const std::vector<std::pair<const char*, Value>>& members) {
    for (const auto& [path, expected] : members) {
        const Value read = at(object, path);
        if (expected.isDouble()) {
            EXPECT_NEAR(read.toDouble(), expected.toDouble(), 0.5) << path;
        } else if (expected.isBool()) {
            EXPECT_EQ(read.toBool(), expected.toBool()) << path;
        } else {
            EXPECT_EQ(read.toText(), expected.toText()) << path;
        }
    }
}

void expectCell(const Value& read, const Value& expected) {
    EXPECT_EQ(read.isBlank(), expected.isBlank());
    if (expected.isBlank()) return;
    EXPECT_TRUE(read.isBool() == expected.isBool() && read.isNumber() == expected.isNumber())
        << expected.toText();
    EXPECT_EQ(read.toText(), expected.toText());
}

office::Table tableOf(const std::vector<std::vector<Value>>& rows) {
    office::Table table(rows.size(), rows.front().size());
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t i = 0; i < rows[row].size(); ++i) table.at(row + 1, i + 1) = rows[row][i];
    }
    return table;
}

std::vector<std::string> namesIn(const Value& collection) {
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= collection.get("Count").toLong(); ++i)
        names.push_back(collection.get("Item", i).get("Name").toText());
    return names;
}

}  // namespace support
