#pragma once

#include <string>

#include "office/package/package.h"

namespace office::package {

/// The title of a document among its properties; empty if it has none. `PackageError`.
[[nodiscard]] std::string titleOf(Package& package);
void setTitleOf(Package& package, const std::string& title);

}  // namespace office::package
