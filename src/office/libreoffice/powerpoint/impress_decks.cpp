#include <utility>

#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/model/powerpoint/objects.h"

namespace libreoffice::powerpoint {

namespace {

class ImpressDecks : public model::Decks {
public:
    explicit ImpressDecks(DeskPtr desk) : desk_(std::move(desk)) {}

    std::string version() override { return "16.0"; }
    std::vector<model::DeckPtr> open() override {
        const auto decks = desk_->presentations();
        return {decks.begin(), decks.end()};
    }
    model::DeckPtr active() override { return desk_->activePresentation(); }
    model::DeckPtr load(const std::string& file, bool withWindow) override {
        const rtl::OUString url = fileUrl(file);
        auto deck = desk_->alreadyOpen<ImpressDeck>(url);
        if (!deck) deck = desk_->loaded<ImpressDeck>(url, withWindow);
        deck->markActive();
        return deck;
    }
    model::DeckPtr create(bool withWindow) override {
        auto deck = desk_->loaded<ImpressDeck>("private:factory/simpress", withWindow);
        deck->beginAnew();
        deck->markActive();
        return deck;
    }

private:
    DeskPtr desk_;
};

}  // namespace

office::Object applicationObject(const DeskPtr& desk) {
    return model::applicationObject(desk->guard(), std::make_shared<ImpressDecks>(desk));
}

}  // namespace libreoffice::powerpoint
