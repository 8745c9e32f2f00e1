#include "office/package/office_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "office/failure.h"
#include "office/files.h"
#include "office/package/xml.h"
#include "office/text.h"

namespace office::package {

FileFacts factsOf(Package& package, const std::string& main, std::string_view strict,
                  std::string_view root) {
    const Xml content(package.read(main), main);
    const auto has = [&](const std::string& source, std::string_view type) {
        return package.relationshipsOf(source).ofType(type) != nullptr;
    };
    return {.isStrict = isNamed(content.root(), strict, root),
            .isSigned = has("/", signatureOrigin),
            .hasMacros = has(main, macroProject)};
}

std::string mainPartOf(Package& package, std::span<const std::string_view> types,
                       const char* kind) {
    const Relationships& relationships = package.relationshipsOf("/");
    const Relationship* const found = relationships.ofType("officeDocument");
    if (found != nullptr) {
        std::string part = relationships.partOf(*found);
        const std::string type = package.contentTypeOf(part);
        if (std::find(types.begin(), types.end(), type) != types.end()) return part;
    }
    throw PackageError(Fault::NotAPackage, fmt::format("it is no {}", kind));
}

namespace {

/// With what signs them.
void dropMacros(Package& package, const std::string& main) {
    Relationships& relationships = package.relationshipsOf(main);
    const Relationship* const macros = relationships.ofType(macroProject);
    if (macros == nullptr) return;
    const std::string part = relationships.partOf(*macros);
    relationships.remove(macros->id);
    // Their signatures hang on them.
    package.removeWithTargets(part);
}

}  // namespace

void becomeFileOf(const std::string& path, const FileKind (&kinds)[2], Package& package,
                  const std::string& main, const std::string& className) {
    const std::string lower = lowerCase(path);
    const auto* const kind = std::find_if(std::begin(kinds), std::end(kinds), [&](const auto& one) {
        return lower.ends_with(one.ending);
    });
    if (kind == std::end(kinds))
        refuseCall(className + ".SaveCopyAs",
                   fmt::format("A {} is saved as {} or {}, not as {}", lowerCase(className),
                               kinds[0].ending, kinds[1].ending, path));
    package.setContentType(main, kind->contentType);
    if (!kind->keepsMacros) dropMacros(package, main);
}

void saveOver(Package& package, const std::string& path) {
    const std::filesystem::path file = pathOf(path);
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
