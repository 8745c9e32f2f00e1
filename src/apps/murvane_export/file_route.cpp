#include "apps/murvane_export/file_route.h"

#include <fmt/format.h>

#include "apps/murvane_export/errors.h"
#include "office/files.h"
#include "office/package/document/document_file.h"
#include "office/package/package.h"
#include "office/package/presentation/deck_file.h"
#include "office/text.h"

namespace unattended {

namespace {

using catalogue::Destination;
using office::package::Fault;
using office::package::FileFacts;
using office::package::PackageError;

/// What tells presentations and documents apart.
struct Kind {
    Destination destination;
    const char* name;
    /// Of files without macros, and of those with.
    const char* ending;
    const char* macroEnding;
    FileFacts (*factsOf)(const std::filesystem::path& file);
};

constexpr Kind decks{Destination::PowerPoint, "presentation", ".pptx", ".pptm",
                     office::package::deckFactsOf};
constexpr Kind documents{Destination::Word, "document", ".docx", ".docm",
                         office::package::documentFactsOf};

std::string outputOf(const Kind& kind, const Options& options) {
    const Target* target = options.targetOf(kind.destination);
    return target == nullptr ? std::string() : target->output;
}

bool endsAs(const Kind& kind, const std::string& file) {
    const std::string lower = office::lowerCase(file);
    return lower.ends_with(kind.ending) || lower.ends_with(kind.macroEnding);
}

/// A suite writes its own formats, for those who keep a document in one of them.
void requireWritable(const FileRoute& route, const std::string& input, const std::string& output) {
    const auto ending = [](const std::string& file) {
        return office::lowerCase(office::utf8Of(office::pathOf(file).extension()));
    };
    if (route.isFile || ending(input) != ending(output))
        throw UsageError(fmt::format(
            "{} can't be written: only a copy of a document of that kind is one. Choose .docx.",
            output));
}

bool keepsMacros(const Kind& kind, const std::string& file) {
    return office::lowerCase(file).ends_with(kind.macroEnding);
}

FileRoute routeOf(const Kind& kind, const FileFacts& facts, const std::string& input,
                  const std::string& output) {
    if (facts.isStrict)
        return {.isFile = false,
                .remarks = {fmt::format("{} is a strict Open XML {}. The suite reads it "
                                        "and writes all of it anew.",
                                        input, kind.name)}};
    FileRoute route{.isFile = true, .remarks = {}};
    if (output.empty()) return route;
    if (facts.isSigned)
        route.remarks.push_back(
            fmt::format("{} is signed. Its signature will not hold for {}.", input, output));
    if (facts.isProtected)
        route.remarks.push_back(
            fmt::format("{} is protected against changes, and {} will be, too. What is added to it "
                        "is there all the same.",
                        input, output));
    if (facts.recordsChanges)
        route.remarks.push_back(fmt::format(
            "{} records changes. What is added to {} will not be marked as one.", input, output));
    if (facts.hasMacros && !keepsMacros(kind, output))
        route.remarks.push_back(
            fmt::format("{} has macros, and {} will be without. A name that ends in {} keeps "
                        "them.",
                        input, output, kind.macroEnding));
    return route;
}

FileRoute lookUp(const Kind& kind, const Options& options, const std::string& input) {
    if (options.attach) return {};
    if (input.empty()) return {.isFile = true, .remarks = {}};
    try {
        return routeOf(kind, kind.factsOf(office::pathOf(input)), input, outputOf(kind, options));
    } catch (const PackageError& error) {
        // Of the older formats, or of another office: the suite knows.
        if (error.fault() == Fault::NotAPackage) return {};
        throw RunError(fmt::format("{} can't be opened: {}.", input, error.what()));
    }
}

FileRoute routeFor(const Kind& kind, const Options& options, const std::string& input) {
    if (options.targetOf(kind.destination) == nullptr) return {.isFile = true, .remarks = {}};
    FileRoute route = lookUp(kind, options, input);
    const std::string output = outputOf(kind, options);
    // Of presentations the output itself says how its name ends; an open document is copied as it
    // is.
    const bool mayBeOther = kind.destination == Destination::Word && !options.attach;
    if (mayBeOther && !output.empty() && !endsAs(kind, output))
        requireWritable(route, input, output);
    if (!route.isFile && keepsMacros(kind, output))
        throw UsageError(fmt::format("{} can't be written: the suite writes no {}. Choose {}.",
                                     output, kind.macroEnding, kind.ending));
    if (!route.isFile && (options.embedsSheetAlone || options.linksAreRelative))
        throw UsageError(
            fmt::format("--embed-only-sheet and --links relative need a {} that is written without "
                        "the suite.",
                        kind.ending));
    return route;
}

}  // namespace

FileRoute deckRouteFor(const Options& options) {
    return routeFor(decks, options, options.deck);
}

FileRoute documentRouteFor(const Options& options) {
    return routeFor(documents, options, options.document);
}

}  // namespace unattended
