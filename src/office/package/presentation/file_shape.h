#pragma once

#include <pugixml.hpp>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/model/powerpoint/deck_shape.h"
#include "office/package/drawing/drawing.h"
#include "office/package/presentation/deck_layouts.h"
#include "office/package/xml.h"

namespace office::package {

class FileSlide;

/// A shape of a slide in a package.
class FileShape : public powerpoint::DeckShape,
                  private powerpoint::ShapeText,
                  public std::enable_shared_from_this<FileShape> {
public:
    /// `element` is the shape, or what holds the alternatives of one.
    FileShape(FileSlide& slide, pugi::xml_node element);

    [[nodiscard]] FileSlide& slide() const { return slide_; }
    [[nodiscard]] pugi::xml_node element() const { return element_; }
    [[nodiscard]] std::optional<Placeholder> placeholder() const { return placeholderOf(node_); }
    /// Whether it is a placeholder that nothing has been put into.
    [[nodiscard]] bool isEmptyPlaceholder();
    void markGone() { isGone_ = true; }
    /// Hands the chart that it shows to the package if that has changed.
    void write();

    [[nodiscard]] bool isGone() const override { return isGone_; }
    std::string name() override;
    void setName(const std::string& name) override;
    std::string alternativeText() override;
    void setAlternativeText(const std::string& text) override;
    powerpoint::Point corner() override;
    void moveTo(const powerpoint::Point& corner) override;
    Size size() override;
    void resize(const Size& size) override;
    bool keepsProportions() override;
    void setKeepsProportions(bool keeps) override;
    powerpoint::Outline outline() override;
    void setOutline(powerpoint::Outline wanted) override;
    std::optional<double> adjustment(std::int32_t place) override;
    bool setAdjustment(std::int32_t place, double value) override;
    powerpoint::Shadow shadow() override;
    void setShadow(const powerpoint::Shadow& shadow) override;
    powerpoint::Reflection reflection() override;
    void setReflection(const powerpoint::Reflection& reflection) override;
    powerpoint::ShapeText* textFrame() override;

private:
    std::string words() override;
    void setWords(const std::string& words) override;
    bool wraps() override;
    void setWraps(bool wraps) override;
    Font font() override;
    void setFont(const powerpoint::FontChange& change) override;

    void describe(const char* attribute, const std::string& text);
    struct Frame {
        powerpoint::Point corner;
        Size size;
    };
    [[nodiscard]] Frame frame();
    void setFrame(const Frame& frame);
    static void write(pugi::xml_node transform, const Frame& frame);
    /// The element that says what the shape looks like; `Failure` 1004 for a kind without one.
    [[nodiscard]] pugi::xml_node looks(std::string_view member);
    [[nodiscard]] pugi::xml_node drawnProperties() const;
    /// Of the picture's or the shape's own: what it is called, what may be done with it.
    [[nodiscard]] pugi::xml_node properties(std::string_view name) const;
    [[nodiscard]] pugi::xml_node locks(bool made);
    /// What holds its effects: of a chart, whose ground has a shadow, another part does.
    [[nodiscard]] pugi::xml_node effectsHolder();
    [[nodiscard]] pugi::xml_node effect(std::string_view name);
    pugi::xml_node madeEffect(std::string_view member, std::string_view name);
    void dropEffect(std::string_view name);
    [[nodiscard]] pugi::xml_node guide(std::int32_t place);
    [[nodiscard]] pugi::xml_node textBody() const;
    /// The properties of its characters, its own and those that it inherits, the nearest first.
    [[nodiscard]] std::vector<pugi::xml_node> characterProperties();
    /// What goes by this name in its text and in the texts that it inherits from, the nearest
    /// first. Some may be null; the first one is its own.
    [[nodiscard]] std::vector<pugi::xml_node> inherited(std::string_view name);
    /// The same of the properties of its first level, the master's last.
    [[nodiscard]] std::vector<pugi::xml_node> levelProperties();
    /// Of its words, in characters of so many times their size.
    [[nodiscard]] Size measured(double scale, std::optional<double> widthPt);
    /// After its text or its font has changed.
    void fitText();
    /// Fits a box to its text that is made to grow with it. Its upper left corner stays.
    void growWithText();
    /// Fits a placeholder's text to its frame that is made to shrink.
    void shrinkText();
    /// The node, which is about to be changed.
    pugi::xml_node changed();

    FileSlide& slide_;
    pugi::xml_node element_;
    pugi::xml_node node_;
    /// Of a frame with a chart, once it has been asked for.
    std::unique_ptr<Xml> chart_;
    std::string chartPart_;
    bool isChartChanged_ = false;
    bool isGone_ = false;
};

using FileShapePtr = std::shared_ptr<FileShape>;

}  // namespace office::package
