#pragma once

#include <memory>
#include <string>
#include <vector>

#include "office_double/powerpoint/slide.h"

namespace office_double {

class PowerPointApplication;

class Presentation : public Doubled<Presentation> {
public:
    Presentation(Owner application, std::string folder, std::string name)
        : Doubled(application),
          folder_(std::move(folder)),
          name_(std::move(name)) {}

    static const office::MemberTable<Presentation>& members();

    // Building.
    Slide& addSlide(Layout layout = Layout::TitleOnly);
    Presentation& addSlides(int number, Layout layout = Layout::TitleOnly);
    /// In points; before slides are added, since they take their placeholders from it.
    Presentation& slideSize(double width, double height);
    Presentation& runSlideShow();

    /// From 1. Throws if there is no such slide.
    [[nodiscard]] Slide& slide(std::size_t index) const { return *slides_.at(index - 1); }
    [[nodiscard]] const std::vector<std::shared_ptr<Slide>>& slides() const { return slides_; }
    [[nodiscard]] std::string name() const override { return name_; }
    [[nodiscard]] std::string fullName() const;
    [[nodiscard]] PowerPointApplication& application() const;
    [[nodiscard]] DocumentWindow& window();
    [[nodiscard]] double slideWidth() const { return slideWidth_; }
    [[nodiscard]] double slideHeight() const { return slideHeight_; }
    [[nodiscard]] bool showsSlides() const { return showRuns_; }
    [[nodiscard]] std::size_t indexOf(const Slide& slide) const;
    [[nodiscard]] std::shared_ptr<DoubleObject> slideShowWindow();
    void removeSlide(Slide& slide);

private:
    Slide& insertSlide(std::size_t at, std::int32_t layout);
    Value readSlides();
    Value readPageSetup();
    Value readSlideShowWindow();
    Value readWindows();
    Value addByCall(const CallArguments& arguments);
    Value saveCopyAs(const CallArguments& arguments);
    Value saveAs(const CallArguments& arguments);
    Value close(const CallArguments& arguments);

    std::string folder_;
    std::string name_;
    std::vector<std::shared_ptr<Slide>> slides_;
    std::shared_ptr<DocumentWindow> window_;
    double slideWidth_ = 960;
    double slideHeight_ = 540;
    std::int32_t nextId_ = 256;
    bool showRuns_ = false;
    bool saved_ = true;
};

}  // namespace office_double
