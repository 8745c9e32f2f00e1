#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "office/copied.h"
#include "office/model/powerpoint/deck_shape.h"

namespace office::model::powerpoint {

/// Layouts by PowerPoint's numbers.
namespace layout {

/// The three that slides are given.
inline constexpr std::int32_t title = 1;
inline constexpr std::int32_t titleOnly = 11;
inline constexpr std::int32_t blank = 12;
inline constexpr std::array given = {title, titleOnly, blank};

/// Slides that stand in the file may have these, or any other.
inline constexpr std::int32_t text = 2;
inline constexpr std::int32_t object = 16;
inline constexpr std::int32_t twoObjects = 29;
inline constexpr std::int32_t other = 32;

/// What PowerPoint's English templates call one of the three.
[[nodiscard]] constexpr std::string_view nameOf(std::int32_t layout) {
    if (layout == title) return "Title Slide";
    return layout == titleOnly ? "Title Only" : "Blank";
}

}  // namespace layout

/// A slide with its shapes, placeholders among them, from the lowest to the topmost. Places count
/// from 1.
class DeckSlide : public Part {
public:
    /// Its place in the presentation.
    virtual std::int32_t place() = 0;
    /// PowerPoint's number; beside the three also others, of slides that stand in the file.
    virtual std::int32_t layout() = 0;
    /// One of the three. What the placeholders of the layout before hold stays.
    virtual void setLayout(std::int32_t layout) = 0;

    virtual std::int32_t shapeCount() = 0;
    /// Null if there is none at this place.
    virtual DeckShapePtr shapeAt(std::int32_t place) = 0;
    /// Null if the slide has none.
    virtual DeckShapePtr titleShape() = 0;

    /// Puts a picture on top of the others, in the size that its file says, and names it as no
    /// other shape of the slide. `Failure` 53 if there is no such file, 1004 if it holds no
    /// picture.
    virtual DeckShapePtr addPicture(const std::string& file, const Point& corner) = 0;
    /// The same with an empty label, which grows with its text.
    virtual DeckShapePtr addLabel(const Point& corner, const Size& size) = 0;
    /// Puts what was copied on top of the others, as `pastePlaceFor` has it. `Failure` 1004 if it
    /// can't be had in this form; then nothing is put there.
    virtual DeckShapePtr paste(const Copied& copied, PasteAs as) = 0;

    virtual void remove() = 0;
};

using DeckSlidePtr = std::shared_ptr<DeckSlide>;

/// The window of a presentation; a file has one too, which remembers what it is told.
class DeckWindow {
public:
    /// PowerPoint's number of the view: 9 normal, 7 sorter, 6 outline, 3 notes page, ...
    virtual std::int32_t viewType() = 0;
    /// `Failure` 5 for a view that isn't there, 1004 if the window keeps its own.
    virtual void setViewType(std::int32_t viewType) = 0;
    /// In the notes view the slide whose notes are in view. Null if none is, as in a view of
    /// masters.
    virtual DeckSlidePtr slideInView() = 0;
    virtual void show(const DeckSlidePtr& slide) = 0;
    /// Selects this shape alone. Brings its slide into view, or is `Failure` 1004 where the
    /// application leaves that to the user.
    virtual void select(const DeckShapePtr& shape) = 0;
    virtual void unselect() = 0;

protected:
    ~DeckWindow() = default;
};

}  // namespace office::model::powerpoint
