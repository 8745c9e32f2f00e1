#pragma once

#include <memory>
#include <vector>

#include "office_double/double_object.h"

namespace office_double {

class Presentation;
class Shape;
class Slide;

/// The window of a presentation: what it shows and what is selected in it.
class DocumentWindow : public Doubled<DocumentWindow> {
public:
    using Doubled::Doubled;

    static const office::MemberTable<DocumentWindow>& members();

    static constexpr std::int32_t normalView = 9;

    void setView(std::int32_t type) { viewType_ = type; }
    /// Null in a presentation without slides.
    [[nodiscard]] std::shared_ptr<Slide> slideInView() const;
    void goToSlide(Slide& slide);
    void selectSlide(Slide& slide);
    /// `Failure` unless the shape's slide is in view.
    void selectShape(Shape& shape, bool replace);
    void selectText(Shape& shape);

private:
    enum class Selected : std::int32_t { Nothing = 0, Slides = 1, Shapes = 2, Text = 3 };

    [[nodiscard]] Presentation& presentation() const;
    void unselect();
    Value readView();
    Value readSelection();
    Value slideRange();
    Value shapeRange();
    Value activate(const CallArguments& arguments);

    std::int32_t viewType_ = normalView;
    std::weak_ptr<DoubleObject> inView_;
    Selected selected_ = Selected::Nothing;
    std::vector<std::weak_ptr<DoubleObject>> shapes_;
};

}  // namespace office_double
