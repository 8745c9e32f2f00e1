#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/suite_documents.h"
#include "office/model/powerpoint/objects.h"

namespace libreoffice::powerpoint {

namespace {

class ImpressDecks : public SuiteDocuments<model::Decks, model::Deck, ImpressDeck> {
public:
    using SuiteDocuments::SuiteDocuments;

    std::string version() override { return "16.0"; }
    model::DeckPtr create(bool withWindow) override {
        auto deck = makeNew("private:factory/simpress", withWindow);
        deck->beginAnew();
        return deck;
    }
};

}  // namespace

office::Object applicationObject(const DeskPtr& desk) {
    return model::applicationObject(desk->guard(), std::make_shared<ImpressDecks>(desk));
}

}  // namespace libreoffice::powerpoint
