#include "office/package/presentation/deck_file.h"

#include <memory>
#include <utility>

#include "office/model/powerpoint/objects.h"
#include "office/package/office_file.h"
#include "office/package/presentation/file_decks.h"

namespace office::package {

constexpr std::string_view strictPresentation = "http://purl.oclc.org/ooxml/presentationml/main";

DeckFacts factsOf(const std::filesystem::path& file) {
    Package package = Package::open(file);
    const std::string main = presentationPartOf(package);
    const Xml presentation(package.read(main), main);
    const auto has = [&](const std::string& source, std::string_view type) {
        return package.relationshipsOf(source).ofType(type) != nullptr;
    };
    const DeckFacts facts{
        .isStrict = isNamed(presentation.root(), strictPresentation, "presentation"),
        .isSigned = has("/", signatureOrigin),
        .hasMacros = has(main, macroProject)};
    if (facts.isStrict) return facts;
    // What is wrong with its slides, layouts and masters shows in a deck that is then dropped.
    const auto deck =
        std::make_shared<FileDeck>(std::move(package), "", "", std::make_shared<FileRules>());
    static_cast<void>(deck->addSlide(1, model::layout::titleOnly));
    return facts;
}

Object powerPointOfFiles(FileRules rules) {
    return model::applicationObject(
        std::make_shared<PackageGuard>(),
        std::make_shared<FileDecks>(std::make_shared<const FileRules>(std::move(rules))));
}

}  // namespace office::package
