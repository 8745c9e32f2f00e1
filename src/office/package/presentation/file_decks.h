#pragma once

#include <memory>
#include <string>
#include <vector>

#include "office/model/guard.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/presentation/file_deck.h"

namespace office::package {

/// What is wrong with a package becomes a failure of the member that met it.
class PackageGuard : public office::model::Guard {
public:
    Value run(const office::model::MemberUse& use,
              const std::function<Value()>& statement) override;
};

/// The presentations that are open, as files or to become such.
class FileDecks : public model::Decks, public std::enable_shared_from_this<FileDecks> {
public:
    explicit FileDecks(FileRulesPtr rules) : rules_(std::move(rules)) {}

    /// Opens what is in a package as the active presentation. `path` is empty for one that has no
    /// file yet.
    FileDeckPtr add(Package package, const std::string& path, const std::string& name);

    std::string version() override { return "16.0"; }
    std::vector<model::DeckPtr> open() override { return {decks_.begin(), decks_.end()}; }
    /// The one that was used last stands last.
    model::DeckPtr active() override { return decks_.empty() ? nullptr : decks_.back(); }
    model::DeckPtr load(const std::string& file, bool withWindow) override;
    model::DeckPtr create(bool withWindow) override;

private:
    /// The presentation of a package; another application may have one that can do more.
    virtual FileDeckPtr makeDeck(Package package, const std::string& path, const std::string& name,
                                 const FileRulesPtr& rules);
    void activate(const FileDeck& wanted);

    FileRulesPtr rules_;
    std::vector<FileDeckPtr> decks_;
    int created_ = 0;
};

}  // namespace office::package
