#include "apps/murvane_export/deck_route.h"

#include <fmt/format.h>

#include "apps/murvane_export/errors.h"
#include "apps/utf8.h"
#include "office/package/package.h"
#include "office/package/presentation/deck_file.h"
#include "office/text.h"

namespace unattended {

namespace {

using office::package::Fault;
using office::package::FileFacts;
using office::package::PackageError;

bool keepsMacros(const std::string& file) {
    return office::lowerCase(file).ends_with(".pptm");
}

DeckRoute routeOf(const FileFacts& facts, const Options& options) {
    if (facts.isStrict)
        return {.isFile = false,
                .remarks = {fmt::format("{} is a strict Open XML presentation. The suite reads it "
                                        "and writes all of it anew.",
                                        options.deck)}};
    DeckRoute route{.isFile = true, .remarks = {}};
    if (options.output.empty()) return route;
    if (facts.isSigned)
        route.remarks.push_back(fmt::format("{} is signed. Its signature will not hold for {}.",
                                            options.deck, options.output));
    if (facts.hasMacros && !keepsMacros(options.output))
        route.remarks.push_back(
            fmt::format("{} has macros, and {} will be without. A name that ends in .pptm keeps "
                        "them.",
                        options.deck, options.output));
    return route;
}

DeckRoute lookUp(const Options& options) {
    if (options.attach) return {};
    if (options.deck.empty()) return {.isFile = true, .remarks = {}};
    try {
        return routeOf(office::package::factsOf(apps::pathOf(options.deck)), options);
    } catch (const PackageError& error) {
        // Of the older formats, or of another office: the suite knows.
        if (error.fault() == Fault::NotAPackage) return {};
        throw RunError(fmt::format("{} can't be opened: {}.", options.deck, error.what()));
    }
}

}  // namespace

DeckRoute routeFor(const Options& options) {
    DeckRoute route = lookUp(options);
    if (!route.isFile && keepsMacros(options.output))
        throw UsageError(fmt::format(
            "{} can't be written: the suite writes no .pptm. Choose .pptx.", options.output));
    if (!route.isFile && (options.embedsSheetAlone || options.linksAreRelative))
        throw UsageError(
            "--embed-only-sheet and --links relative need a .pptx that is written without the "
            "suite.");
    return route;
}

}  // namespace unattended
