#include "office_double/powerpoint/window.h"

#include "office_double/loose_object.h"
#include "office_double/powerpoint/application.h"
#include "office_double/powerpoint/presentation.h"
#include "office_double/powerpoint/selected_range.h"

namespace office_double {

namespace {

[[noreturn]] void refuse(const std::string& source, const std::string& why) {
    throw Failure(FailureNumber::ApplicationDefined, source, why);
}

}  // namespace

const office::MemberTable<DocumentWindow>& DocumentWindow::members() {
    using Self = DocumentWindow;
    static const auto table =
        office::MemberTable<Self>("DocumentWindow")
            .property("ViewType", reading(&Self::viewType_), writing(&Self::viewType_))
            .property("Caption", reading([](Self& self) { return self.presentation().name(); }))
            .property("View", &Self::readView)
            .property("Selection", &Self::readSelection)
            .method("Activate", {}, &Self::activate);
    return table;
}

std::shared_ptr<Slide> DocumentWindow::slideInView() const {
    const auto shown = std::dynamic_pointer_cast<Slide>(inView_.lock());
    if (shown && !shown->isGone()) return shown;
    const auto& slides = presentation().slides();
    return slides.empty() ? nullptr : slides.front();
}

void DocumentWindow::goToSlide(Slide& slide) {
    unselect();
    inView_ = slide.weak_from_this();
}

void DocumentWindow::selectSlide(Slide& slide) {
    goToSlide(slide);
    selected_ = Selected::Slides;
}

void DocumentWindow::selectShape(Shape& shape, bool replace) {
    if (slideInView().get() != &shape.parent<Slide>()) {
        refuse("Shape.Select", "Only a shape of the slide in view can be selected");
    }
    if (replace) unselect();
    shapes_.push_back(shape.weak_from_this());
    selected_ = Selected::Shapes;
}

void DocumentWindow::selectText(Shape& shape) {
    selectShape(shape, true);
    selected_ = Selected::Text;
}

Presentation& DocumentWindow::presentation() const {
    return parent<Presentation>();
}

void DocumentWindow::unselect() {
    shapes_.clear();
    selected_ = Selected::Nothing;
}

Value DocumentWindow::readView() {
    auto view = looseObject(*this, "View");
    view->reads("Slide", [this] {
        if (const auto slide = slideInView()) return valueOf(slide);
        refuse("View.Slide", "No slide is in view");
    });
    view->reads("Type", [this] { return Value(viewType_); });
    view->method("GotoSlide", {"Index"}, [this](const CallArguments& arguments) {
        goToSlide(*lookUp(presentation().slides(), arguments.at(0).toLong(), arguments.source()));
        return Value();
    });
    return valueOf(view);
}

Value DocumentWindow::readSelection() {
    auto selection = looseObject(*this, "Selection");
    selection->reads("Type", [this] { return Value(static_cast<std::int32_t>(selected_)); });
    selection->reads("SlideRange", [this] { return slideRange(); });
    selection->reads("ShapeRange", [this] { return shapeRange(); });
    selection->method("Unselect", {}, [this](const CallArguments&) {
        unselect();
        return Value();
    });
    return valueOf(selection);
}

Value DocumentWindow::slideRange() {
    const auto slide = slideInView();
    if (!slide) refuse("Selection.SlideRange", "There is no slide");
    return Object(std::make_shared<SelectedRange>(*this, "SlideRange", Items{slide}));
}

Value DocumentWindow::shapeRange() {
    Items shapes;
    for (const auto& held : shapes_) {
        if (auto shape = held.lock(); shape && !shape->isGone()) shapes.push_back(shape);
    }
    if (shapes.empty()) refuse("Selection.ShapeRange", "No shape is selected");
    return Object(std::make_shared<SelectedRange>(*this, "ShapeRange", shapes));
}

Value DocumentWindow::activate(const CallArguments&) {
    presentation().application().activate(presentation());
    return {};
}

}  // namespace office_double
