#include "live/powerpoint_live_test.h"

#include <chrono>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/excel/package_parts.h"
#include "office/libreoffice/powerpoint/application.h"
#include "support/png_file.h"

namespace live {

std::unique_ptr<libreoffice::PrivateInstance> PowerPointLive::instance_;

void PowerPointLive::SetUpTestSuite() {
    instance_ = libreoffice::PrivateInstance::start(std::chrono::seconds(60));
}

void PowerPointLive::TearDownTestSuite() {
    instance_.reset();
}

void PowerPointLive::SetUp() {
    std::string pattern = (std::filesystem::temp_directory_path() / "murvane-live-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
    app = libreoffice::powerpoint::applicationObject(
        std::make_shared<libreoffice::Desk>(instance_->connection(), true));
}

void PowerPointLive::TearDown() {
    const Value open = app.get("Presentations");
    while (open.get("Count").toLong() > 0) {
        const Value first = open.get("Item", 1);
        first.put("Saved", true);
        first.call("Close");
    }
    std::filesystem::remove_all(folder_);
}

void PowerPointLive::withWindows() {
    app = libreoffice::powerpoint::applicationObject(
        std::make_shared<libreoffice::Desk>(instance_->connection(), false));
}

Object PowerPointLive::open(std::string_view deck) {
    // A copy, so that nothing can lock or change the one that all tests share.
    const auto copy = folder_ / deck;
    std::filesystem::copy_file(std::filesystem::path(MURVANE_TEST_DECKS) / deck, copy);
    return openFile(copy.string());
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
    const auto package = libreoffice::excel::PackageParts::open(*instance_->connection(),
                                                                libreoffice::fileUrl(path));
    return package ? package->read(name) : std::string();
}

std::uint64_t PowerPointLive::remoteCalls() {
    return instance_->connection()->remoteCalls();
}

}  // namespace live
