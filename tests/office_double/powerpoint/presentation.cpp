#include "office_double/powerpoint/presentation.h"

#include <algorithm>
#include <filesystem>

#include "office_double/loose_object.h"
#include "office_double/powerpoint/application.h"
#include "office_double/powerpoint/window.h"
#include "support/png_file.h"

namespace office_double {

const office::MemberTable<Presentation>& Presentation::members() {
    using Self = Presentation;
    const office::MemberTable<Self>::Names saving = {"FileName", "FileFormat",
                                                     "EmbedTrueTypeFonts"};
    static const auto table =
        office::MemberTable<Self>("Presentation")
            .property("Name", reading(&Self::name_))
            .property("FullName", reading(&Self::fullName))
            .property("Path", reading(&Self::folder_))
            .property("Saved", readingTriState(&Self::saved_), writing(&Self::saved_))
            .property("Slides", &Self::readSlides)
            .property("PageSetup", &Self::readPageSetup)
            .property("SlideShowWindow", &Self::readSlideShowWindow)
            .property("Windows", &Self::readWindows)
            .method("SaveCopyAs", saving, &Self::saveCopyAs)
            .method("SaveAs", saving, &Self::saveAs)
            .method("Close", {}, &Self::close);
    return table;
}

Slide& Presentation::addSlide(Layout layout) {
    return insertSlide(slides_.size(), static_cast<std::int32_t>(layout));
}

Presentation& Presentation::addSlides(int number, Layout layout) {
    for (int i = 0; i < number; ++i) addSlide(layout);
    return *this;
}

Presentation& Presentation::slideSize(double width, double height) {
    slideWidth_ = width;
    slideHeight_ = height;
    return *this;
}

Presentation& Presentation::runSlideShow() {
    showRuns_ = true;
    return *this;
}

std::string Presentation::fullName() const {
    return folder_.empty() ? name_ : folder_ + "/" + name_;
}

PowerPointApplication& Presentation::application() const {
    return parent<PowerPointApplication>();
}

DocumentWindow& Presentation::window() {
    if (!window_) window_ = std::make_shared<DocumentWindow>(*this);
    return *window_;
}

std::size_t Presentation::indexOf(const Slide& slide) const {
    const auto self = std::find_if(slides_.begin(), slides_.end(),
                                   [&](const auto& held) { return held.get() == &slide; });
    return static_cast<std::size_t>(self - slides_.begin()) + 1;
}

std::shared_ptr<DoubleObject> Presentation::slideShowWindow() {
    auto made = looseObject(*this, "SlideShowWindow");
    made->reads("View", [this] {
        auto view = looseObject(*this, "SlideShowView");
        view->method("Exit", {}, [this](const CallArguments&) {
            showRuns_ = false;
            return Value();
        });
        return valueOf(view);
    });
    return made;
}

void Presentation::removeSlide(Slide& slide) {
    slide.remove();
    std::erase_if(slides_, [&](const auto& held) { return held.get() == &slide; });
    saved_ = false;
}

Slide& Presentation::insertSlide(std::size_t at, std::int32_t layout) {
    auto slide = std::make_shared<Slide>(*this, layout, nextId_++);
    slides_.insert(slides_.begin() + static_cast<std::ptrdiff_t>(at), slide);
    slide->makePlaceholders();
    return *slide;
}

Value Presentation::readSlides() {
    auto made = collection(*this, "Slides", [this] { return itemsOf(slides_); });
    made->method("Add", {"Index", "Layout"},
                 [this](const CallArguments& arguments) { return addByCall(arguments); });
    return valueOf(made);
}

Value Presentation::addByCall(const CallArguments& arguments) {
    const std::int32_t index = arguments.at(0).toLong();
    if (index < 1 || static_cast<std::size_t>(index) > slides_.size() + 1) {
        throw Failure(FailureNumber::InvalidProcedureCall, arguments.source(),
                      "There is no such place for a slide");
    }
    saved_ = false;
    return insertSlide(static_cast<std::size_t>(index - 1), arguments.at(1).toLong()).handle();
}

Value Presentation::readPageSetup() {
    auto made = looseObject(*this, "PageSetup");
    made->number("SlideWidth", slideWidth_).number("SlideHeight", slideHeight_);
    return valueOf(made);
}

Value Presentation::readSlideShowWindow() {
    if (showRuns_) return valueOf(slideShowWindow());
    throw Failure(FailureNumber::ApplicationDefined, "Presentation.SlideShowWindow",
                  "No slide show runs");
}

Value Presentation::readWindows() {
    return valueOf(collection(*this, "DocumentWindows",
                              [this] { return Items{window().shared_from_this()}; }));
}

Value Presentation::saveCopyAs(const CallArguments& arguments) {
    const std::string text = "A copy of " + name_ + "\n";
    support::writeBytes(arguments.at(0).toText(), {text.begin(), text.end()});
    return {};
}

Value Presentation::saveAs(const CallArguments& arguments) {
    saveCopyAs(arguments);
    const std::filesystem::path path = arguments.at(0).toText();
    folder_ = path.parent_path().string();
    name_ = path.filename().string();
    saved_ = true;
    return {};
}

Value Presentation::close(const CallArguments&) {
    application().closePresentation(*this);
    return {};
}

}  // namespace office_double
