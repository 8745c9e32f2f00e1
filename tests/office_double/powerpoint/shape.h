#pragma once

#include <string>
#include <vector>

#include "office/model/powerpoint/deck_shape.h"
#include "office/value.h"
#include "office_double/box.h"

namespace office_double {

namespace model = office::model::powerpoint;

class Slide;

class Shape : public model::DeckShape,
              private model::ShapeText,
              public std::enable_shared_from_this<Shape> {
public:
    enum class Kind { Picture, Placeholder, TextBox };

    Shape(Slide& slide, Kind kind, std::string name, const Box& box)
        : slide_(slide),
          kind_(kind),
          name_(std::move(name)),
          box_(box),
          keepsProportions_(kind == Kind::Picture) {}

    // Building.
    Shape& text(std::string words);
    /// Every call that would change it fails, as for a shape that the application keeps as it is.
    Shape& refuseChanges();

    [[nodiscard]] office::Object handle();
    [[nodiscard]] const Box& box() const { return box_; }
    [[nodiscard]] Kind kind() const { return kind_; }
    [[nodiscard]] const std::string& text() const { return words_; }
    [[nodiscard]] const std::string& alternativeText() const { return alternativeText_; }
    [[nodiscard]] bool hasShadow() const { return shadow_.isVisible; }
    [[nodiscard]] Slide& slide() const { return slide_; }
    void markGone() { isGone_ = true; }

    [[nodiscard]] bool isGone() const override { return isGone_; }
    std::string name() override { return name_; }
    void setName(const std::string& name) override { changed().name_ = name; }
    std::string alternativeText() override { return alternativeText_; }
    void setAlternativeText(const std::string& text) override { changed().alternativeText_ = text; }
    model::Point corner() override { return {box_.left, box_.top}; }
    void moveTo(const model::Point& corner) override;
    model::Size size() override { return {box_.width, box_.height}; }
    void resize(const model::Size& size) override;
    bool keepsProportions() override { return keepsProportions_; }
    void setKeepsProportions(bool keeps) override { changed().keepsProportions_ = keeps; }
    model::Outline outline() override { return outline_; }
    void setOutline(model::Outline outline) override;
    std::optional<double> adjustment(std::int32_t place) override;
    bool setAdjustment(std::int32_t place, double value) override;
    model::Shadow shadow() override { return shadow_; }
    void setShadow(const model::Shadow& shadow) override { changed().shadow_ = shadow; }
    model::Reflection reflection() override { return reflection_; }
    void setReflection(const model::Reflection& wanted) override { changed().reflection_ = wanted; }
    model::ShapeText* textFrame() override { return kind_ == Kind::Picture ? nullptr : this; }
    void remove() override;

private:
    /// The shape, which is about to be changed.
    Shape& changed();
    void growWithText();

    std::string words() override { return words_; }
    void setWords(const std::string& words) override;
    bool wraps() override { return wraps_; }
    void setWraps(bool wraps) override { changed().wraps_ = wraps; }
    model::Font font() override { return font_; }
    void setFont(const model::FontChange& change) override;

    Slide& slide_;
    Kind kind_;
    std::string name_;
    Box box_;
    std::string alternativeText_;
    std::string words_;
    model::Font font_ = {.name = "Calibri", .sizePt = 18, .colour = 0};
    model::Shadow shadow_;
    model::Reflection reflection_;
    model::Outline outline_ = model::Outline::Rectangle;
    std::vector<double> adjustments_;
    bool keepsProportions_;
    bool wraps_ = true;
    bool refusesChanges_ = false;
    bool isGone_ = false;
};

}  // namespace office_double
