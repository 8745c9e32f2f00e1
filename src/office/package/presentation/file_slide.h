#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "office/model/powerpoint/deck_slide.h"
#include "office/model/powerpoint/paste.h"
#include "office/package/drawing/picture_file.h"
#include "office/package/presentation/file_shape.h"
#include "office/package/xml.h"

namespace office::package {

class FileDeck;

/// A slide in a package; its part is read once somebody asks for what it holds.
class FileSlide : public powerpoint::DeckSlide, public std::enable_shared_from_this<FileSlide> {
public:
    FileSlide(FileDeck& deck, std::string part, std::string relationshipId, std::string id)
        : deck_(deck),
          part_(std::move(part)),
          relationshipId_(std::move(relationshipId)),
          id_(std::move(id)) {}

    [[nodiscard]] FileDeck& deck() const { return deck_; }
    [[nodiscard]] const std::string& part() const { return part_; }
    /// How the presentation names it: by its relationship and by its own number.
    [[nodiscard]] const std::string& relationshipId() const { return relationshipId_; }
    [[nodiscard]] const std::string& id() const { return id_; }
    [[nodiscard]] std::string layoutPart();
    void makePlaceholders(std::int32_t layout);
    /// Date, footer and number, as another slide shows them, where the own layout has a place for
    /// them.
    void takeFootOf(FileSlide& other);
    void removeShape(FileShape& shape);
    void touch() { isChanged_ = true; }
    void markGone();
    /// Hands a changed slide to the package.
    void write();
    /// The same, and lets go of what the slide has been read into, which is several times as large.
    /// A slide one of whose shapes is held by somebody stays as it is.
    void rest();

    [[nodiscard]] bool isGone() const override { return isGone_; }
    std::int32_t place() override;
    std::int32_t layout() override;
    void setLayout(std::int32_t layout) override;
    std::int32_t shapeCount() override { return static_cast<std::int32_t>(shapes().size()); }
    powerpoint::DeckShapePtr shapeAt(std::int32_t place) override;
    powerpoint::DeckShapePtr titleShape() override;
    powerpoint::DeckShapePtr addPicture(const std::string& file,
                                        const powerpoint::Point& corner) override;
    powerpoint::DeckShapePtr addLabel(const powerpoint::Point& corner, const Size& size) override;
    powerpoint::DeckShapePtr paste(const Copied& copied, PasteAs as) override;
    void remove() override;

    /// Puts a shape on top of the others, and names it by its kind and its number.
    FileShapePtr addShape(std::string_view kind, const std::string& markup);
    /// The same for what stands in a frame: a chart, a table, an object. `lock` is what the user
    /// can't do with the frame, `space` the namespace of what it holds.
    FileShapePtr addFrame(std::string_view kind, std::string_view lock,
                          const powerpoint::PastePlace& place, std::string_view space,
                          const std::string& content);

private:
    [[nodiscard]] std::vector<FileShapePtr>& shapes();
    [[nodiscard]] pugi::xml_node tree();
    FileShapePtr addPicture(PictureFile picture, const powerpoint::Point& corner);
    [[nodiscard]] FileShapePtr pasteChart(const Copied& copied, PasteAs as);
    void placeForItself(FileShape& title);
    FileShapePtr nameShape(std::string_view kind, pugi::xml_node element);
    [[nodiscard]] std::int32_t freeShapeId();

    FileDeck& deck_;
    std::string part_;
    std::string relationshipId_;
    std::string id_;
    std::unique_ptr<Xml> xml_;
    std::vector<FileShapePtr> shapes_;
    bool isChanged_ = false;
    bool isGone_ = false;
};

using FileSlidePtr = std::shared_ptr<FileSlide>;

/// A place and a size, as a transformation holds them.
[[nodiscard]] std::string boxMarkup(const powerpoint::Point& corner, const Size& size);

}  // namespace office::package
