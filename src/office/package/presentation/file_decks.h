#pragma once

#include "office/package/open_files.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/presentation/file_deck.h"

namespace office::package {

class FileDecks : public OpenFiles<powerpoint::Decks, powerpoint::Deck, FileDeck> {
public:
    using OpenFiles::OpenFiles;
    std::string version() override { return "16.0"; }
    powerpoint::DeckPtr create(bool withWindow) override;
};

}  // namespace office::package
