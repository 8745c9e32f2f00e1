#pragma once

#include <memory>
#include <string>
#include <vector>

#include "office/model/powerpoint/objects.h"
#include "office_double/powerpoint/shape.h"

namespace office_double {

class PowerPointApplication;
class Presentation;

/// The layouts that occur, as PowerPoint numbers them.
enum class Layout : std::int32_t { Title = 1, Text = 2, TitleOnly = 11, Blank = 12 };

class Slide : public model::DeckSlide, public std::enable_shared_from_this<Slide> {
public:
    Slide(Presentation& presentation, std::int32_t layout)
        : presentation_(presentation),
          layout_(layout) {}

    // Building.
    Shape& shape(Shape::Kind kind, std::string name, const Box& box);

    [[nodiscard]] const std::vector<std::shared_ptr<Shape>>& shapes() const { return shapes_; }
    /// Null on a slide without one.
    [[nodiscard]] Shape* title() const { return title_.lock().get(); }
    [[nodiscard]] Presentation& presentation() const { return presentation_; }
    void makePlaceholders();
    void removeShape(Shape& shape);
    void markGone();

    [[nodiscard]] bool isGone() const override { return isGone_; }
    std::int32_t place() override;
    std::int32_t layout() override { return layout_; }
    void setLayout(std::int32_t layout) override;
    std::int32_t shapeCount() override { return static_cast<std::int32_t>(shapes_.size()); }
    model::DeckShapePtr shapeAt(std::int32_t place) override;
    model::DeckShapePtr titleShape() override { return title_.lock(); }
    model::DeckShapePtr addPicture(const std::string& file, const model::Point& corner) override;
    model::DeckShapePtr addLabel(const model::Point& corner, const model::Size& size) override;
    void remove() override;

private:
    [[nodiscard]] std::string freshName(const char* kind) const;

    Presentation& presentation_;
    std::int32_t layout_;
    std::vector<std::shared_ptr<Shape>> shapes_;
    std::weak_ptr<Shape> title_;
    bool isGone_ = false;
};

/// A presentation with its window, which remembers what it shows and what is selected in it.
class Presentation : public model::Deck,
                     private model::DeckWindow,
                     public std::enable_shared_from_this<Presentation> {
public:
    Presentation(PowerPointApplication& application, std::string folder, std::string name)
        : application_(application),
          folder_(std::move(folder)),
          name_(std::move(name)) {}

    // Building.
    Slide& addSlide(Layout layout = Layout::TitleOnly);
    Presentation& addSlides(int number, Layout layout = Layout::TitleOnly);
    /// In points; before slides are added, since they take their placeholders from it.
    Presentation& slideSize(double width, double height);
    Presentation& runSlideShow();

    [[nodiscard]] office::Object handle() { return model::presentationObject(home()); }
    [[nodiscard]] model::InDeck home();
    /// From 1. Throws if there is no such slide.
    [[nodiscard]] Slide& slide(std::size_t index) const { return *slides_.at(index - 1); }
    [[nodiscard]] const std::vector<std::shared_ptr<Slide>>& slides() const { return slides_; }
    void removeSlide(Slide& slide);
    void markGone();

    [[nodiscard]] bool isGone() const override { return isGone_; }
    std::string name() override { return name_; }
    std::string fullName() override { return folder_.empty() ? name_ : folder_ + "/" + name_; }
    model::Size slideSize() override { return slideSize_; }
    std::int32_t slideCount() override { return static_cast<std::int32_t>(slides_.size()); }
    model::DeckSlidePtr slideAt(std::int32_t place) override;
    model::DeckSlidePtr addSlide(std::int32_t place, std::int32_t layout) override;
    model::DeckWindow& window() override { return *this; }
    void activate() override;
    bool showsSlides() override { return showRuns_; }
    void endSlideShow() override { showRuns_ = false; }
    void saveCopy(const std::string& path) override;
    void close() override;

private:
    std::int32_t viewType() override { return viewType_; }
    void setViewType(std::int32_t viewType) override { viewType_ = viewType; }
    model::DeckSlidePtr slideInView() override;
    void show(const model::DeckSlidePtr& slide) override;
    std::vector<model::DeckShapePtr> selectedShapes() override;
    void select(const model::DeckShapePtr& shape) override;
    void unselect() override { selected_.reset(); }

    PowerPointApplication& application_;
    std::string folder_;
    std::string name_;
    std::vector<std::shared_ptr<Slide>> slides_;
    model::Size slideSize_ = {960, 540};
    std::int32_t viewType_ = 9;
    std::weak_ptr<model::DeckSlide> inView_;
    std::weak_ptr<model::DeckShape> selected_;
    bool showRuns_ = false;
    bool isGone_ = false;
};

}  // namespace office_double
