#pragma once

#include <pugixml.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace office::package {

/// A field that counts: SEQ.
struct SequenceField {
    /// The name that it counts under, in small letters.
    std::string name;
    /// The text of its paragraph ahead of it.
    std::string ahead;
    /// The texts (w:t) that show its number.
    std::vector<pugi::xml_node> shown;
    /// Whether it shows a number in plain digits.
    bool isPlain = true;
    /// What it counts to, with those of its name before it.
    std::int32_t number = 0;
};

/// Those of a text, in the order of reading.
[[nodiscard]] std::vector<SequenceField> sequenceFieldsIn(pugi::xml_node text);

}  // namespace office::package
