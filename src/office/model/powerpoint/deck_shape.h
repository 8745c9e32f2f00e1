#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "office/model/part.h"
#include "office/model/powerpoint/shape_looks.h"

namespace office::model::powerpoint {

/// The text of a shape, with carriage returns between its paragraphs.
class ShapeText {
public:
    virtual std::string words() = 0;
    /// The shape's upper left corner stays where it is; so it does in the next two.
    virtual void setWords(const std::string& words) = 0;
    virtual bool wraps() = 0;
    /// A shape that grows with its text grows in width too once the text does not wrap.
    virtual void setWraps(bool wraps) = 0;
    virtual Font font() = 0;
    virtual void setFont(const FontChange& change) = 0;

protected:
    ~ShapeText() = default;
};

/// A shape on a slide. `Failure` 1004 from whatever a shape of its kind can't do.
class DeckShape : public Part {
public:
    virtual std::string name() = 0;
    virtual void setName(const std::string& name) = 0;
    virtual std::string alternativeText() = 0;
    virtual void setAlternativeText(const std::string& text) = 0;

    virtual Point corner() = 0;
    virtual void moveTo(const Point& corner) = 0;
    virtual Size size() = 0;
    /// Both sides are above 0, or as they were.
    virtual void resize(const Size& size) = 0;
    /// Whether the object model lets one side follow the other. Pictures begin with yes.
    virtual bool keepsProportions() = 0;
    virtual void setKeepsProportions(bool keeps) = 0;

    virtual Outline outline() = 0;
    /// A rectangle or a rounded one.
    virtual void setOutline(Outline outline) = 0;
    /// A number that forms the outline, by its place from 1; nothing if there is none. Of a rounded
    /// rectangle the first is its radius, as a share of the shorter side. A picture has none.
    virtual std::optional<double> adjustment(std::int32_t place) = 0;
    /// False if there is none at this place.
    virtual bool setAdjustment(std::int32_t place, double value) = 0;

    virtual Shadow shadow() = 0;
    virtual void setShadow(const Shadow& shadow) = 0;
    virtual Reflection reflection() = 0;
    virtual void setReflection(const Reflection& reflection) = 0;

    /// Null for a shape that can't hold text, such as a picture.
    virtual ShapeText* textFrame() = 0;
};

using DeckShapePtr = std::shared_ptr<DeckShape>;

}  // namespace office::model::powerpoint
