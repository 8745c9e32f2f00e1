#include "office/package/presentation/file_decks.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include "office/package/presentation/template.h"

namespace office::package {

Value PackageGuard::run(const office::model::MemberUse& use,
                        const std::function<Value()>& statement) {
    try {
        return statement();
    } catch (const PackageError& error) {
        throw Failure(FailureNumber::ApplicationDefined,
                      fmt::format("{}.{}", use.className, use.member), error.what());
    }
}

FileDeckPtr FileDecks::add(Package package, const std::string& path, const std::string& name) {
    FileDeckPtr deck = makeDeck(std::move(package), path, name, rules_);
    deck->onActivated([self = weak_from_this()](FileDeck& active) {
        if (const auto decks = self.lock()) decks->activate(active);
    });
    deck->onClosed([self = weak_from_this()](FileDeck& closed) {
        closed.markGone();
        if (const auto decks = self.lock())
            std::erase_if(decks->decks_, [&](const auto& held) { return held.get() == &closed; });
    });
    decks_.push_back(deck);
    return deck;
}

model::DeckPtr FileDecks::load(const std::string& file, bool /*withWindow*/) {
    const auto known = std::find_if(decks_.begin(), decks_.end(),
                                    [&](const auto& deck) { return deck->fullName() == file; });
    if (known != decks_.end()) {
        activate(**known);
        return decks_.back();
    }
    const std::filesystem::path path(std::u8string(file.begin(), file.end()));
    const auto name = path.filename().u8string();
    return add(Package::open(path), file, {name.begin(), name.end()});
}

model::DeckPtr FileDecks::create(bool /*withWindow*/) {
    return add(Package::fromBytes(emptyDeck()), "", fmt::format("Presentation{}", ++created_));
}

FileDeckPtr FileDecks::makeDeck(Package package, const std::string& path, const std::string& name,
                                const FileRulesPtr& rules) {
    return std::make_shared<FileDeck>(std::move(package), path, name, rules);
}

void FileDecks::activate(const FileDeck& wanted) {
    const auto found = std::find_if(decks_.begin(), decks_.end(),
                                    [&](const auto& held) { return held.get() == &wanted; });
    if (found != decks_.end()) std::rotate(found, found + 1, decks_.end());
}

}  // namespace office::package
