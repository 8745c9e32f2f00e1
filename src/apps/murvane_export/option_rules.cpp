#include "apps/murvane_export/option_rules.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/option_words.h"

namespace unattended {

namespace {

using catalogue::Destination;
using Given = std::set<std::string>;
using Names = std::vector<const char*>;

bool makesAny(const Options& options, const Names& destinations) {
    return std::any_of(destinations.begin(), destinations.end(), [&](const char* name) {
        return options.targetOf(destinationsByName().at(name)) != nullptr;
    });
}

void requireApart(const Given& given) {
    const std::vector<std::pair<const char*, Names>> known = {
        {"--check", {"--list"}},
        {"--list", {"--to", "--output", "--into", "--overwrite"}},
        {"--no-titles", {"--titles"}},
        {"--items", {"--all"}},
    };
    for (const auto& [option, others] : known) {
        for (const char* other : others) {
            if (given.contains(option) && given.contains(other))
                throw UsageError(fmt::format("{} and {} don't go together.", other, option));
        }
    }
    if (given.contains("--attach") && given.contains("--into"))
        throw UsageError(
            "--into and --attach don't go together: --attach uses what is active in the running "
            "suite.");
}

void requireFormats(const Options& options, const Given& given) {
    const std::vector<std::pair<const char*, const char*>> known = {
        {"--embed-only-sheet", "embedded"}, {"--links", "linked"}, {"--pictures", "pictures"}};
    for (const auto& [option, format] : known) {
        if (given.contains(option) && options.format != formatsByName().at(format))
            throw UsageError(fmt::format("{} goes with --format {}.", option, format));
    }
}

void requireDestinations(const Options& options, const Given& given) {
    const std::vector<std::pair<const char*, Names>> known = {
        {"--cover", {"pdf"}},
        {"--captions-below", {"word"}},
        {"--blank-lines", {"html"}},
        {"--image-format", {"images"}},
        {"--file-names", {"images"}},
        {"--slides", {"slides"}},
        {"--style", {"slides"}},
        {"--top", {"slides"}},
        {"--width", {"slides"}},
        {"--left", {"slides"}},
        {"--format", {"slides", "word"}},
        {"--pictures", {"slides", "word"}},
        {"--shadow", {"slides", "word"}},
        {"--same-width", {"word", "html"}},
        {"--size", {"pdf", "html"}},
        {"--source", {"slides", "pdf"}},
        {"--titles", {"slides", "pdf", "html"}},
        {"--no-titles", {"slides", "pdf", "html"}},
    };
    for (const auto& [option, names] : known) {
        if (given.contains(option) && !makesAny(options, names))
            throw UsageError(
                fmt::format("{} goes with --to {}.", option, fmt::join(names, " or ")));
    }
    if (given.contains("--size") && !makesAny(options, {"pdf"}) && !options.sameWidth)
        throw UsageError("--size goes with --to pdf, or with --to html and --same-width.");
}

/// In a document what is embedded or linked is as wide as the text, and takes nothing else.
void requireLooksInWord(const Options& options, const Given& given) {
    if (!makesAny(options, {"word"})) return;
    const std::vector<std::pair<const char*, Names>> known = {
        {"--captions-below", {}}, {"--same-width", {"html"}}, {"--shadow", {"slides"}}};
    for (const char* format : {"embedded", "linked"}) {
        if (options.format != formatsByName().at(format)) continue;
        for (const auto& [option, others] : known) {
            if (given.contains(option) && !makesAny(options, others))
                throw UsageError(
                    fmt::format("{} and --format {} don't go together in Word.", option, format));
        }
    }
}

void requireSlides(const Options& options) {
    if (options.predefinedSlides && options.deck.empty() && !options.attach &&
        options.task != Task::List)
        throw UsageError(
            "--slides predefined needs a presentation that has slides: name it with "
            "--into DECK.");
    if (makesAny(options, {"slides"}) && options.shadow &&
        options.look != session::PictureLook::None)
        throw UsageError(
            "--style and --shadow don't go together: from the second item on, the shadow would "
            "take the place of the style. Choose a style that has a shadow, such as "
            "shadow-around.");
}

}  // namespace

void requireFitting(const Options& options, const std::set<std::string>& given) {
    if (options.json && options.task != Task::List) throw UsageError("--json goes with --list.");
    requireFormats(options, given);
    requireDestinations(options, given);
    requireLooksInWord(options, given);
    requireApart(given);
    requireSlides(options);
}

}  // namespace unattended
