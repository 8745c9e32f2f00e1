#pragma once

#include <string>

namespace compare {

/// How far two PNG pictures of one size differ, on white: the mean difference of their channels, of
/// 255, after both have been averaged over 6 by 6 pixels.
[[nodiscard]] double differenceOf(const std::string& one, const std::string& other);

/// Writes them side by side as a PNG file.
void writePair(const std::string& one, const std::string& other, const std::string& path);

}  // namespace compare
