#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/failure.h"
#include "office/value.h"

/// What tests ask of automation objects, in one line each.
namespace support {

/// The number of the failure that a statement ends in, 0 if it goes through. Its words go to
/// `words`.
template <class Statement>
std::int32_t failureOf(Statement&& statement, std::string* words = nullptr) {
    try {
        statement();
        return 0;
    } catch (const office::Failure& failure) {
        if (words != nullptr) *words = failure.description();
        return failure.number();
    }
}

/// What a path of members leads to: "TextFrame.TextRange.Text".
office::Value at(const office::Value& from, std::string_view path);

/// Expects what the paths lead to: a number with a fraction to within half a unit, all else as it
/// is.
void expectMembers(const office::Value& object,
                   const std::vector<std::pair<const char*, office::Value>>& members);

/// Expects a cell's content, of the same type.
void expectCell(const office::Value& read, const office::Value& expected);

office::Table tableOf(const std::vector<std::vector<office::Value>>& rows);

/// The names of the members of a collection, in order.
std::vector<std::string> namesIn(const office::Value& collection);

}  // namespace support
