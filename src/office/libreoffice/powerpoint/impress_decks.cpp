#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <fmt/format.h>

#include <utility>

#include "office/failure.h"
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
    model::DeckPtr load(const std::string& file, bool withWindow) override;
    model::DeckPtr create(bool withWindow) override;

private:
    [[nodiscard]] bool isHidden(bool withWindow) const {
        return desk_->opensHidden() || !withWindow;
    }
    [[nodiscard]] std::shared_ptr<ImpressDeck> openedFrom(const rtl::OUString& url) const;

    DeskPtr desk_;
};

model::DeckPtr ImpressDecks::load(const std::string& file, bool withWindow) {
    auto deck = openedFrom(fileUrl(file));
    if (!deck) {
        const auto model = desk_->load(fileUrl(file), isHidden(withWindow));
        if (!as<css::lang::XServiceInfo>(model)->supportsService(
                "com.sun.star.presentation.PresentationDocument")) {
            as<css::util::XCloseable>(model)->close(true);
            throw office::Failure(office::FailureNumber::ApplicationDefined, "Presentations.Open",
                                  fmt::format("\"{}\" is not a presentation", file));
        }
        deck = desk_->presentation(model);
    }
    deck->markActive();
    return deck;
}

std::shared_ptr<ImpressDeck> ImpressDecks::openedFrom(const rtl::OUString& url) const {
    // LibreOffice would open a file twice, and the two would go separate ways.
    for (const auto& deck : desk_->presentations()) {
        if (deck->url() == url) return deck;
    }
    return nullptr;
}

model::DeckPtr ImpressDecks::create(bool withWindow) {
    auto deck = desk_->presentation(desk_->load("private:factory/simpress", isHidden(withWindow)));
    deck->beginAnew();
    deck->markActive();
    return deck;
}

}  // namespace

office::Object applicationObject(const DeskPtr& desk) {
    return model::applicationObject(desk->guard(), std::make_shared<ImpressDecks>(desk));
}

}  // namespace libreoffice::powerpoint
