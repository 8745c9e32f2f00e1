#pragma once

#include <string>

namespace apps {

/// These make a folder for this user alone, whose name tells its process and machine: a later
/// process there that makes one in the same place takes it away if this one was killed. Empty if it
/// can't be made, with the reason in `errno`.

/// For files that pass from one program to another.
[[nodiscard]] std::string makePrivateFolder(const std::string& parent);

/// A hidden one beside what it is written for.
[[nodiscard]] std::string makeDraftFolder(const std::string& parent);

/// Takes those away that processes of this user have left which were killed.
void sweepDraftFolders(const std::string& parent);

}  // namespace apps
