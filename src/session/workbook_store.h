#pragma once

#include <cstddef>
#include <string_view>

#include "office/failure_patterns.h"
#include "session/office_session.h"

namespace session {

/// The very hidden sheet in which a workbook carries what the user decided about its items.
namespace store {

inline constexpr const char* sheetName = "kukukukuZichron";
/// Columns A to H, the items.
inline constexpr const char* itemsName = "MurvaneReservedName01";
/// A block that is kept free.
inline constexpr const char* reservedName = "MurvaneReservedName02";
/// A third name that is no item; the program only tests against it.
inline constexpr const char* foreignName = "AllZichron11111";

inline constexpr int veryHidden = 2;

/// Columns of an item's row. The caption stands apart from the rest.
inline constexpr std::size_t itemNameColumn = 1;
inline constexpr std::size_t sheetNameColumn = 2;
inline constexpr std::size_t slideNumberColumn = 3;
inline constexpr std::size_t orderColumn = 4;
inline constexpr std::size_t includedColumn = 5;
inline constexpr std::size_t itemKindColumn = 6;
inline constexpr std::size_t laterRowColumn = 7;
inline constexpr std::size_t itemKeyColumn = 8;
inline constexpr std::size_t captionColumn = 20;
inline constexpr std::size_t columnCount = 20;

/// Columns of the placement cells, all of row 1.
inline constexpr std::size_t topColumn = 15;
inline constexpr std::size_t widthColumn = 16;
inline constexpr std::size_t leftColumn = 18;

}  // namespace store

/// Whether the active workbook has a worksheet of this name.
[[nodiscard]] bool SheetExists(OfficeSession& session, std::string_view name);

/// Makes the store sheet with its names and formats, if there is a workbook and it has none.
/// Failures are passed over: a protected workbook stays without.
void EnsureStoreSheet(OfficeSession& session);

/// Puts the rows, 20 columns each, in the place of the stored ones, with the marker below them.
/// Only columns A to H of rows further down are cleared, and the placement cells keep what they
/// hold. Each step that fails is passed over.
void writeStoreRows(OfficeSession& session, office::ContinueOnFailure& scope, office::Table rows);

}  // namespace session
