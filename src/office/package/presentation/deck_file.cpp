#include "office/package/presentation/deck_file.h"

#include <memory>
#include <utility>

#include "office/model/powerpoint/objects.h"
#include "office/package/office_file.h"
#include "office/package/presentation/file_decks.h"
#include "office/package/presentation/template.h"

namespace office::package {

constexpr std::string_view strictPresentation = "http://purl.oclc.org/ooxml/presentationml/main";

FileFacts deckFactsOf(const std::filesystem::path& file) {
    Package package = Package::open(file);
    const std::string main = presentationPartOf(package);
    const FileFacts facts = factsOf(package, main, strictPresentation, "presentation");
    if (facts.isStrict) return facts;
    // What is wrong with its slides, layouts and masters shows in a deck that is then dropped.
    const auto deck =
        std::make_shared<FileDeck>(std::move(package), "", "", std::make_shared<FileRules>());
    static_cast<void>(deck->addSlide(1, powerpoint::layout::titleOnly));
    return facts;
}

powerpoint::DeckPtr FileDecks::create(bool /*withWindow*/) {
    return addNew(emptyDeck(), "Presentation");
}

Object powerPointOfFiles(FileRules rules) {
    return powerpoint::applicationObject(
        std::make_shared<PackageGuard>(),
        std::make_shared<FileDecks>(std::make_shared<const FileRules>(std::move(rules))));
}

}  // namespace office::package
