#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <utility>

#include "office/package/xml.h"

namespace office::package {

/// Cells by column and row, from 0.
using NotedCells = std::set<std::pair<std::int32_t, std::int32_t>>;

/// The cells of a sheet's part of notes whose note is a copy of a conversation, which programs
/// write for those that know no conversations: with all answers, and who gave them.
[[nodiscard]] NotedCells conversationsIn(const Xml& notes);
/// Takes these copies out, and the authors whom no note is left of. False if no note is left.
bool dropConversations(const Xml& notes);

/// Whether a drawing of the old kind holds the boxes of notes and nothing else, such as controls.
[[nodiscard]] bool holdsNotesAlone(const std::string& drawing);
/// Such a drawing without the boxes of some cells.
[[nodiscard]] std::string withoutBoxesOf(const NotedCells& cells, const std::string& drawing);

}  // namespace office::package
