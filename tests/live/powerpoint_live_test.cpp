#include "live/powerpoint_live_test.h"

#include "office/libreoffice/connection.h"
#include "office/libreoffice/excel/package_parts.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "support/png_file.h"
#include "support/written_decks.h"

namespace live {

void PowerPointLive::SetUp() {
    app = libreoffice::powerpoint::applicationObject(
        std::make_shared<libreoffice::Desk>(connection(), true));
}

void PowerPointLive::TearDown() {
    support::keepDecks(file(""), MURVANE_TEST_DECKS);
    const Value open = app.get("Presentations");
    while (open.get("Count").toLong() > 0) open.get("Item", 1).call("Close");
}

Object PowerPointLive::open(std::string_view deck) {
    return openFile(copyOf(MURVANE_TEST_DECKS, deck));
}

Object PowerPointLive::openFile(const std::string& path) {
    return app.get("Presentations").call("Open", path).toObject();
}

Object PowerPointLive::openWithSlides() {
    const Object deck = open("english.pptx");
    for (const std::int32_t layout : {titleOnly, titleOnly, blank})
        deck.get("Slides").call("Add", slideCount(deck) + 1, layout);
    return deck;
}

std::string PowerPointLive::picture(double widthPt, double heightPt) const {
    const std::string path = file("picture.png");
    support::writeBytes(path, support::pngPictureOfPoints(widthPt, heightPt));
    return path;
}

Object PowerPointLive::addPicture(const Object& slide, double widthPt, double heightPt) const {
    return slide.get("Shapes")
        .call("AddPicture", picture(widthPt, heightPt), 0, -1, 0, 0, -1, -1)
        .toObject();
}

Object PowerPointLive::slide(const Object& deck, std::int32_t place) {
    return deck.get("Slides").get("Item", place).toObject();
}

std::int32_t PowerPointLive::slideCount(const Object& deck) {
    return deck.get("Slides").get("Count").toLong();
}

std::string PowerPointLive::part(const std::string& path, const std::string& name) {
    const auto package =
        libreoffice::excel::PackageParts::open(*connection(), libreoffice::fileUrl(path));
    return package ? package->read(name) : std::string();
}

}  // namespace live
