#pragma once

#include <string_view>

#include "session/office_session.h"

/// The very hidden sheet in which a workbook carries what the user has decided: whether there can
/// be one, and how it is made.
namespace session {

namespace store {

inline constexpr const char* sheetName = "kukukukuZichron";
/// Columns A to H, the items.
inline constexpr const char* itemsName = "MurvaneReservedName01";
/// A block that is kept free.
inline constexpr const char* reservedName = "MurvaneReservedName02";
/// A third name that is no item; the program only tests against it.
inline constexpr const char* foreignName = "AllZichron11111";
/// Of cells whose texts stay as they were typed.
inline constexpr const char* textFormat = "@";

}  // namespace store

/// Whether the active workbook has a worksheet of this name.
[[nodiscard]] bool SheetExists(OfficeSession& session, std::string_view name);

/// Whether what the user decides can be kept in the active workbook: it may be written, and has the
/// store sheet or can take one. A notice says why not.
[[nodiscard]] bool CanKeepStore(OfficeSession& session);

/// A new worksheet behind all others; the sheet on top stays there. `Failure` of Excel where the
/// workbook takes none.
[[nodiscard]] office::Object AddSheetAtEnd(const office::Object& book);

/// Makes the store sheet with its names and formats, if there is a workbook and it has none.
/// Failures are passed over: a protected workbook stays without.
void EnsureStoreSheet(OfficeSession& session);

}  // namespace session
