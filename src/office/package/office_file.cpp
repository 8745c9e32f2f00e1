#include "office/package/office_file.h"

#include <fmt/format.h>

#include <filesystem>
#include <system_error>

namespace office::package {

void dropMacros(Package& package, const std::string& main) {
    Relationships& relationships = package.relationshipsOf(main);
    const Relationship* const macros = relationships.ofType(macroProject);
    if (macros == nullptr) return;
    const std::string part = relationships.partOf(*macros);
    relationships.remove(macros->id);
    // Their signatures hang on them.
    package.removeWithTargets(part);
}

void saveOver(Package& package, const std::string& path) {
    const std::filesystem::path file(std::u8string(path.begin(), path.end()));
    std::filesystem::path fresh = file;
    fresh += ".new";
    package.save(fresh);
    std::error_code problem;
    std::filesystem::rename(fresh, file, problem);
    if (!problem) return;
    std::error_code ignored;
    std::filesystem::remove(fresh, ignored);
    throw PackageError(Fault::Unreadable,
                       fmt::format("it can't be written ({})", problem.message()));
}

}  // namespace office::package
