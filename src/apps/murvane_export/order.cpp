#include "apps/murvane_export/order.h"

#include <fstream>
#include <sstream>
#include <utility>

#include "apps/utf8.h"

namespace unattended {

namespace {

std::string readFile(const std::string& path) {
    const std::ifstream file(apps::pathOf(path), std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

}  // namespace

Order checkOrder(const Options& options) {
    Order order;
    const auto inputs = {std::pair(options.book, "workbook"),
                         std::pair(options.deck, "presentation"),
                         std::pair(options.document, "document")};
    for (const auto& [file, what] : inputs) {
        if (!file.empty()) requireFile(apps::pathOf(file), what);
    }
    if (!options.captionsFile.empty()) {
        requireReadable(apps::pathOf(options.captionsFile), "captions file");
        order.captions = readCaptions(readFile(options.captionsFile), options.captionsFile);
    }
    if (options.task == Task::Export) {
        for (const Target& target : options.targets) {
            order.outputs.push_back(outputFor(target, options.overwrite));
            for (const auto& [file, what] : inputs) {
                if (!file.empty()) order.outputs.back()->requireOtherThan(apps::pathOf(file));
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
