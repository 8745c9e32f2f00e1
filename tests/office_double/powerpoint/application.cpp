#include "office_double/powerpoint/application.h"

#include <filesystem>

#include "support/png_file.h"
#include "support/temporary_folder.h"

namespace office_double {

excel::Box Shape::box() const {
    const auto [left, top] = part->corner();
    const auto [width, height] = part->size();
    return {left, top, width, height};
}

Shape Slide::addPicture(const excel::Box& box) const {
    static const support::TemporaryFolder folder;
    const std::string file = folder.file("picture.png");
    support::writeBytes(file, support::pngPictureOfPoints(24, 15));
    const auto picture = part->addPicture(file, {box.left, box.top});
    picture->resize({box.width, box.height});
    return {home, picture};
}

std::vector<Shape> Slide::shapes() const {
    std::vector<Shape> all;
    for (std::int32_t place = 1; place <= part->shapeCount(); ++place)
        all.push_back({home, part->shapeAt(place)});
    return all;
}

Slide Presentation::addSlide(std::int32_t layout) {
    return {home(), addSlide(slideCount() + 1, layout)};
}

Presentation& Presentation::addSlides(int number) {
    for (int i = 0; i < number; ++i) addSlide();
    return *this;
}

Presentation& Presentation::runSlideShow() {
    showRuns = true;
    return *this;
}

PowerPointApplication::PowerPointApplication(std::shared_ptr<SuiteState> state)
    : FileDecks(std::make_shared<package::FileRules>(
          package::FileRules{.measure = measureOfDouble,
                             .clipboard = state->clipboard,
                             .pictures = std::make_shared<DrawnAtOnce>()})),
      state_(std::move(state)) {}

Presentation& PowerPointApplication::addPresentation(const std::string& name,
                                                     const std::string& folder,
                                                     package::Package content) {
    return dynamic_cast<Presentation&>(*add(std::move(content), folder + "/" + name, name));
}

model::DeckPtr PowerPointApplication::load(const std::string& file, bool withWindow) {
    const auto known = files_.find(file);
    if (known == files_.end()) return FileDecks::load(file, withWindow);
    const std::filesystem::path path = file;
    Presentation& opened = addPresentation(path.filename().string(), path.parent_path().string());
    known->second(opened);
    return opened.shared_from_this();
}

}  // namespace office_double
