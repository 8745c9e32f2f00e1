#pragma once

#include <string>
#include <string_view>

namespace office::model::word {

/// The name under which captions of a label are counted: letters, digits and low lines, a letter
/// first, at most 40 characters, and no word that a suite calculates with. Labels that differ in
/// signs alone get the same name: `number` from 2 on makes it another one.
[[nodiscard]] std::string sequenceName(std::string_view label, int number = 1);

}  // namespace office::model::word
