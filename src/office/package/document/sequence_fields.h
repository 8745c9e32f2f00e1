#pragma once

#include <pugixml.hpp>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace office::package {

/// A field that counts: SEQ.
struct SequenceField {
    /// The name that it counts under, in small letters.
    std::string name;
    /// The text of its paragraph ahead of it, no more than any label has.
    std::string ahead;
    /// The texts (w:t) that show its number.
    std::vector<pugi::xml_node> shown;
    /// Whether it shows a number in plain digits.
    bool isPlain = true;
    /// What it counts to, with those of its name before it.
    std::int32_t number = 0;
};

/// Shows a visitor those of a text in the order of reading.
void visitSequenceFields(pugi::xml_node text,
                         const std::function<void(const SequenceField&)>& visit);

}  // namespace office::package
