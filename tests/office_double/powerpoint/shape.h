#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "office_double/box.h"
#include "office_double/double_object.h"

namespace office_double {

class Slide;

class Shape : public Doubled<Shape> {
public:
    enum class Kind : std::int32_t { AutoShape = 1, Picture = 13, Placeholder = 14, TextBox = 17 };

    Shape(Owner slide, Kind kind, std::string name, const Box& box);

    static const office::MemberTable<Shape>& members();

    // Building.
    Shape& text(std::string text);
    /// Every call of one of its members that writes fails, as for a shape that the application
    /// doesn't let be changed.
    Shape& refuseChanges();

    [[nodiscard]] std::string name() const override { return name_; }
    [[nodiscard]] const Box& box() const { return box_; }
    [[nodiscard]] Kind kind() const { return kind_; }
    [[nodiscard]] const std::string& text() const { return text_; }
    [[nodiscard]] const std::string& alternativeText() const { return alternativeText_; }
    [[nodiscard]] bool hasShadow() const { return shadow_.visible; }

    void write(std::string_view member, const Arguments& arguments, const Value& value) override;

private:
    struct Font {
        std::string name = "Calibri";
        double size = 18;
        bool bold = false;
        std::int32_t colour = 0;
    };
    struct Shadow {
        bool visible = false;
        double blur = 0;
        double size = 100;
        double offsetX = 0;
        double offsetY = 0;
        double transparency = 0;
        std::int32_t colour = 0;
    };
    struct Reflection {
        double offset = 0;
        double size = 0;
        double blur = 0;
        double transparency = 0;
    };

    [[nodiscard]] Slide& slide() const;
    void resize(double Box::*side, double points);
    void growWithText();
    Value readAutoShapeType() { return autoShapeType_; }
    void setAutoShapeType(const Value& type);

    Value readTextFrame();
    /// Characters `start` to `start + length - 1`; a negative length means all of them.
    Value textRange(std::int32_t start, std::int32_t length);
    void replaceText(std::int32_t start, std::int32_t length, const std::string& with);
    Value readFont();
    Value colour(std::string className, std::int32_t& rgb);
    Value readShadow();
    Value readReflection();
    Value readAdjustments();
    Value select(const CallArguments& arguments);
    Value deleteShape(const CallArguments& arguments);

    Kind kind_;
    std::string name_;
    Box box_;
    std::string title_;
    std::string alternativeText_;
    std::string text_;
    Font font_;
    Shadow shadow_;
    Reflection reflection_;
    std::int32_t autoShapeType_ = 1;
    std::vector<double> adjustments_;
    bool lockAspectRatio_;
    bool wordWrap_ = true;
    bool refusesChanges_ = false;
};

}  // namespace office_double
