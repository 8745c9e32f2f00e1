#pragma once

#include "office/package/zip_source.h"

namespace office::package {

/// `PackageError` for a file of the older binary kind, which is also what wraps an encrypted
/// package: Password, Rights, or else NotAPackage. Any other file is let through.
void refuseCompoundFile(ZipInput& input);

}  // namespace office::package
