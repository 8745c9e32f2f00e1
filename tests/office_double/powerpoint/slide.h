#pragma once

#include <memory>
#include <string>
#include <vector>

#include "office_double/powerpoint/shape.h"

namespace office_double {

class DocumentWindow;
class Presentation;

/// The layouts that occur, as PowerPoint numbers them.
enum class Layout : std::int32_t { Title = 1, Text = 2, TitleOnly = 11, Blank = 12 };

class Slide : public Doubled<Slide> {
public:
    Slide(Owner presentation, std::int32_t layout, std::int32_t id);

    static const office::MemberTable<Slide>& members();

    // Building.
    Shape& shape(Shape::Kind kind, const std::string& name, const Box& box);

    [[nodiscard]] std::string name() const override { return name_; }
    [[nodiscard]] const std::vector<std::shared_ptr<Shape>>& shapes() const { return shapes_; }
    /// Null on a slide without one.
    [[nodiscard]] Shape* title() const { return title_.lock().get(); }
    [[nodiscard]] Presentation& presentation() const;
    [[nodiscard]] DocumentWindow& window() const;
    void makePlaceholders();
    void removeShape(Shape& shape);

private:
    Value readIndex();
    Value readShapes();
    Value readLayout() { return layout_; }
    void setLayout(const Value& layout);
    Value addPicture(const CallArguments& arguments);
    Value addLabel(const CallArguments& arguments);
    Value select(const CallArguments& arguments);
    Value deleteSlide(const CallArguments& arguments);

    std::string name_;
    std::int32_t layout_;
    std::int32_t id_;
    std::vector<std::shared_ptr<Shape>> shapes_;
    std::weak_ptr<Shape> title_;
};

}  // namespace office_double
