#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "office/model/powerpoint/deck_slide.h"

/// What the object model of PowerPoint asks of what lies below: a suite, a file, or plain values in
/// memory. Places count from 1.
namespace office::model::powerpoint {

/// An open presentation.
class Deck : public Part {
public:
    /// The file's name with its ending; of one never saved, what its window calls it.
    virtual std::string name() = 0;
    /// The file's path; the name alone of one never saved.
    virtual std::string fullName() = 0;
    /// Whether it is opened for reading only.
    virtual bool isReadOnly() = 0;
    virtual Size slideSize() = 0;

    virtual std::int32_t slideCount() = 0;
    /// Null if there is none at this place.
    virtual DeckSlidePtr slideAt(std::int32_t place) = 0;
    /// A new slide that gets this place; null unless that is 1 to the count + 1.
    virtual DeckSlidePtr addSlide(std::int32_t place, std::int32_t layout) = 0;

    virtual DeckWindow& window() = 0;
    /// What a paste finds; null if nothing was copied.
    virtual CopiedPtr copied() = 0;
    /// Makes it the active presentation and gives its window the foreground.
    virtual void activate() = 0;
    virtual bool showsSlides() = 0;
    virtual void endSlideShow() = 0;

    /// Writes a copy; the presentation keeps its own file, name and state. `Failure` 5 for an
    /// ending other than .pptx, 1004 with the reason if the file does not come about.
    virtual void saveCopy(const std::string& path) = 0;
    /// Closes without saving.
    virtual void close() = 0;
};

using DeckPtr = std::shared_ptr<Deck>;

/// The presentations of one application.
class Decks {
public:
    Decks() = default;
    Decks(const Decks&) = delete;
    Decks& operator=(const Decks&) = delete;
    virtual ~Decks() = default;

    virtual std::string version() = 0;
    virtual std::vector<DeckPtr> open() = 0;
    /// The one that was used last; null with none open.
    virtual DeckPtr active() = 0;
    /// Opens a file, which becomes active; one that is open already is not opened twice. `Failure`
    /// 1004 with the reason.
    virtual DeckPtr load(const std::string& file, bool withWindow) = 0;
    /// A new presentation without slides, 960 by 540 points, which becomes active.
    virtual DeckPtr create(bool withWindow) = 0;
};

using DecksPtr = std::shared_ptr<Decks>;

}  // namespace office::model::powerpoint
