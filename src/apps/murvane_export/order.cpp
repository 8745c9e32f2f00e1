#include "apps/murvane_export/order.h"

#include <fmt/format.h>

#include <utility>

#include "apps/murvane_export/errors.h"
#include "office/files.h"
#include "office/text.h"

namespace unattended {

namespace {

/// LibreOffice asks somebody how to read such a file, and calls it damaged where nobody answers.
void requireNoTableOfText(const std::string& book) {
    const std::string ending = office::lowerCase(office::utf8Of(office::pathOf(book).extension()));
    if (ending == ".csv" || ending == ".tsv")
        throw UsageError(fmt::format(
            "{} is a table as text, which has no charts and no names. Save it as a workbook, add "
            "them there, and name that.",
            book));
}

}  // namespace

Order checkOrder(const Options& options) {
    Order order;
    const auto inputs = {std::pair(options.book, "workbook"),
                         std::pair(options.deck, "presentation"),
                         std::pair(options.document, "document")};
    for (const auto& [file, what] : inputs) {
        if (!file.empty()) requireFile(office::pathOf(file), what);
    }
    // One that is open has what has been added to it there.
    if (!options.attach) requireNoTableOfText(options.book);
    if (!options.captionsFile.empty()) {
        const auto file = office::pathOf(options.captionsFile);
        requireReadable(file, "captions file");
        order.captions = readCaptions(office::bytesOf(file).value_or(""), options.captionsFile);
    }
    if (options.task == Task::Export) {
        for (const Target& target : options.targets) {
            order.outputs.push_back(outputFor(target, options.overwrite));
            for (const auto& [file, what] : inputs) {
                if (!file.empty()) order.outputs.back()->requireOtherThan(office::pathOf(file));
            }
        }
    }
    if (options.task != Task::List) {
        order.decks = deckRouteFor(options);
        order.documents = documentRouteFor(options);
    }
    return order;
}

}  // namespace unattended
