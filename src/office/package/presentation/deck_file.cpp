#include "office/package/presentation/deck_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "office/model/powerpoint/objects.h"
#include "office/package/presentation/file_deck.h"
#include "office/package/presentation/template.h"

namespace office::package {

namespace {

std::filesystem::path pathOf(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

/// What is wrong with a package becomes a failure of the member that met it.
class FileGuard : public office::model::Guard {
public:
    Value run(const office::model::MemberUse& use,
              const std::function<Value()>& statement) override {
        try {
            return statement();
        } catch (const PackageError& error) {
            throw Failure(FailureNumber::ApplicationDefined,
                          fmt::format("{}.{}", use.className, use.member), error.what());
        }
    }
};

class FileDecks : public model::Decks, public std::enable_shared_from_this<FileDecks> {
public:
    explicit FileDecks(MeasureText measure) : measure_(std::move(measure)) {}

    std::string version() override { return "16.0"; }
    std::vector<model::DeckPtr> open() override { return {decks_.begin(), decks_.end()}; }
    /// The one that was used last stands last.
    model::DeckPtr active() override { return decks_.empty() ? nullptr : decks_.back(); }

    model::DeckPtr load(const std::string& file, bool /*withWindow*/) override {
        const auto known = std::find_if(decks_.begin(), decks_.end(),
                                        [&](const auto& deck) { return deck->fullName() == file; });
        if (known != decks_.end()) {
            activate(**known);
            return decks_.back();
        }
        const auto path = pathOf(file);
        const auto name = path.filename().u8string();
        return add(Package::open(path), file, {name.begin(), name.end()});
    }

    model::DeckPtr create(bool /*withWindow*/) override {
        return add(Package::fromBytes(emptyDeck()), "", fmt::format("Presentation{}", ++created_));
    }

private:
    model::DeckPtr add(Package package, const std::string& path, const std::string& name) {
        decks_.push_back(std::make_shared<FileDeck>(std::move(package), path, name, measure_));
        decks_.back()->onActivated([self = weak_from_this()](FileDeck& deck) {
            if (const auto decks = self.lock()) decks->activate(deck);
        });
        decks_.back()->onClosed([self = weak_from_this()](FileDeck& deck) {
            deck.markGone();
            if (const auto decks = self.lock())
                std::erase_if(decks->decks_, [&](const auto& held) { return held.get() == &deck; });
        });
        return decks_.back();
    }

    void activate(const FileDeck& wanted) {
        const auto found = std::find_if(decks_.begin(), decks_.end(),
                                        [&](const auto& held) { return held.get() == &wanted; });
        std::rotate(found, found + 1, decks_.end());
    }

    MeasureText measure_;
    std::vector<FileDeckPtr> decks_;
    int created_ = 0;
};

}  // namespace

DeckFacts factsOf(const std::filesystem::path& file) {
    Package package = Package::open(file);
    const std::string main = presentationPartOf(package);
    const Xml presentation(package.read(main), main);
    const auto has = [&](const std::string& source, std::string_view type) {
        return package.relationshipsOf(source).ofType(type) != nullptr;
    };
    const DeckFacts facts{
        .isStrict = !isNamed(presentation.root(), ns::presentation, "presentation"),
        .isSigned = has("/", signatureOrigin),
        .hasMacros = has(main, macroProject)};
    if (facts.isStrict) return facts;
    // What is wrong with its slides, layouts and masters shows in a deck that is then dropped.
    const auto deck = std::make_shared<FileDeck>(std::move(package), "", "", MeasureText());
    static_cast<void>(deck->addSlide(1, model::layout::titleOnly));
    return facts;
}

Object powerPointOfFiles(MeasureText measure) {
    return model::applicationObject(std::make_shared<FileGuard>(),
                                    std::make_shared<FileDecks>(std::move(measure)));
}

}  // namespace office::package
