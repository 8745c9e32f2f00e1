#include "apps/murvane_export/order.h"

#include <utility>

#include "office/files.h"

namespace unattended {

Order checkOrder(const Options& options) {
    Order order;
    const auto inputs = {std::pair(options.book, "workbook"),
                         std::pair(options.deck, "presentation"),
                         std::pair(options.document, "document")};
    for (const auto& [file, what] : inputs) {
        if (!file.empty()) requireFile(office::pathOf(file), what);
    }
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
