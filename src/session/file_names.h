#pragma once

#include <string_view>

namespace session {

/// Refuses a name that is not the name of one file: `office::Failure` 75 if it is empty, "." or
/// "..", or holds a separator
/// ('/' or '\') or a control character. Names made from workbook names go through here, so that
/// none of them leads to another folder.
void requireFileName(std::string_view name);

}  // namespace session
