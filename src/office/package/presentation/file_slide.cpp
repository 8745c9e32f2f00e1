#include "office/package/presentation/file_slide.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>

#include "office/file_address.h"
#include "office/model/powerpoint/objects.h"
#include "office/package/drawing/picture_file.h"
#include "office/package/part_name.h"
#include "office/package/presentation/file_deck.h"
#include "office/package/presentation/object_parts.h"
#include "office/package/presentation/table_markup.h"

namespace office::package {

namespace {

constexpr std::array<std::string_view, 6> shapeNames = {"sp",    "pic",   "graphicFrame",
                                                        "grpSp", "cxnSp", "contentPart"};

bool isShape(pugi::xml_node node) {
    if (isNamed(node, ns::compatibility, "AlternateContent")) return true;
    return std::any_of(shapeNames.begin(), shapeNames.end(), [&](std::string_view name) {
        return isNamed(node, ns::presentation, name);
    });
}

const char* nameOf(const Placeholder& placeholder) {
    if (placeholder.isTitle()) return "Title";
    if (placeholder.type == "sldNum") return "Slide Number Placeholder";
    if (placeholder.type == "dt") return "Date Placeholder";
    if (placeholder.type == "ftr") return "Footer Placeholder";
    return placeholder.type == "subTitle" ? "Subtitle" : "Placeholder";
}

/// Gives an empty paragraph the look of one that has text.
void takeLook(pugi::xml_node paragraph, pugi::xml_node shown) {
    if (const auto alignment = childNamed(shown, ns::drawing, "pPr")) adopt(paragraph, alignment);
    const auto run = childNamed(shown, ns::drawing, "r");
    const auto characters = childNamed(run, ns::drawing, "rPr");
    if (!characters) return;
    if (auto copy = adopt(paragraph, characters)) {
        std::string name = copy.name();
        copy.set_name(name.replace(name.find("rPr"), std::string::npos, "endParaRPr").c_str());
    }
}

}  // namespace

std::string boxMarkup(const powerpoint::Point& corner, const Size& size) {
    return fmt::format(R"(<a:off x="{}" y="{}"/><a:ext cx="{}" cy="{}"/>)", emuOf(corner.left),
                       emuOf(corner.top), emuOf(size.width), emuOf(size.height));
}

pugi::xml_node FileSlide::tree() {
    if (!xml_) xml_ = std::make_unique<Xml>(deck_.package().read(part_), part_);
    const auto found = shapeTreeOf(*xml_);
    if (!found)
        throw PackageError(Fault::Damaged, "its slide " + shown(part_) + " has no tree of shapes");
    return found;
}

/// A title that its layout has no place for stands where the master has its own, or along the upper
/// edge: nothing is inherited from beyond the layout.
void FileSlide::placeForItself(FileShape& title) {
    constexpr double plainSizePt = 28;
    powerpoint::DeckShape& shape = title;
    Size size = shape.size();
    if (size.width > 0) {
        shape.moveTo(shape.corner());
    } else {
        const Size slide = deck_.slideSize();
        size = {slide.width * 0.9, slide.height * 0.12};
        shape.moveTo({slide.width * 0.05, slide.height * 0.04});
        shape.textFrame()->setFont({.name = {}, .sizePt = plainSizePt, .colour = {}});
    }
    shape.resize(size);
}

std::vector<FileShapePtr>& FileSlide::shapes() {
    if (!xml_) {
        for (const pugi::xml_node child : tree().children()) {
            if (isShape(child)) shapes_.push_back(std::make_shared<FileShape>(*this, child));
        }
    }
    return shapes_;
}

std::string FileSlide::layoutPart() {
    std::string layout = deck_.package().partOfType(part_, "slideLayout");
    if (layout.empty())
        throw PackageError(Fault::Damaged, "its slide " + shown(part_) + " has no layout");
    return layout;
}

std::int32_t FileSlide::place() {
    return deck_.placeOf(*this);
}

std::int32_t FileSlide::layout() {
    return deck_.layouts().numberOf(layoutPart());
}

void FileSlide::setLayout(std::int32_t layout) {
    Relationships& relationships = deck_.package().relationshipsOf(part_);
    const std::string found = deck_.layouts().find(layout, layoutPart());
    relationships.remove(relationships.ofType("slideLayout")->id);
    relationships.add("slideLayout", found);
    const auto empty = [](const FileShapePtr& shape) { return shape->isEmptyPlaceholder(); };
    while (true) {
        const auto leftOver = std::find_if(shapes().begin(), shapes().end(), empty);
        if (leftOver == shapes().end()) break;
        removeShape(**leftOver);
    }
    makePlaceholders(layout);
}

/// Those of the layout that the slide hasn't yet.
void FileSlide::makePlaceholders(std::int32_t layout) {
    for (const Placeholder& wanted : deck_.layouts().placeholdersFor(layout, layoutPart())) {
        const bool isThere = std::any_of(shapes().begin(), shapes().end(), [&](const auto& shape) {
            const auto own = shape->placeholder();
            return own && (wanted.isTitle() ? own->isTitle() : own->index == wanted.index);
        });
        if (isThere) continue;
        const auto made = addShape(nameOf(wanted), R"(<p:sp><p:nvSpPr><p:cNvPr/><p:cNvSpPr>)"
                                                   R"(<a:spLocks noGrp="1"/></p:cNvSpPr>)"
                                                   R"(<p:nvPr><p:ph/></p:nvPr></p:nvSpPr><p:spPr/>)"
                                                   R"(<p:txBody><a:bodyPr/><a:lstStyle/><a:p/>)"
                                                   R"(</p:txBody></p:sp>)");
        auto kind = made->element().first_child().last_child().first_child();
        if (wanted.type != "obj") kind.append_attribute("type").set_value(wanted.type.c_str());
        if (wanted.index != "0") kind.append_attribute("idx").set_value(wanted.index.c_str());
        if (const auto shown = deck_.layouts().shownTextOf(wanted, layoutPart()))
            takeLook(made->element().last_child().last_child(), shown);
        if (!deck_.layouts().placeFor(wanted, layoutPart())) placeForItself(*made);
    }
}

powerpoint::DeckShapePtr FileSlide::shapeAt(std::int32_t place) {
    const auto index = static_cast<std::size_t>(place) - 1;
    return index < shapes().size() ? shapes()[index] : nullptr;
}

powerpoint::DeckShapePtr FileSlide::titleShape() {
    const auto found = std::find_if(shapes().begin(), shapes().end(), [](const auto& shape) {
        const auto kind = shape->placeholder();
        return kind && kind->isTitle();
    });
    return found != shapes().end() ? *found : nullptr;
}

std::int32_t FileSlide::freeShapeId() {
    constexpr std::uint32_t highest = 0x7FFFFFFE;
    std::set<std::uint32_t> taken = {1};
    visitBelow(tree(), [&](pugi::xml_node node) {
        if (std::string_view(node.name()).ends_with("cNvPr"))
            taken.insert(node.attribute("id").as_uint());
    });
    std::uint32_t id = *taken.rbegin() + 1;
    if (*taken.rbegin() > highest) {
        for (id = 2; taken.contains(id);) ++id;
    }
    return static_cast<std::int32_t>(id);
}

FileShapePtr FileSlide::addShape(std::string_view kind, const std::string& markup) {
    static_cast<void>(shapes());
    // What its maker adds to a tree stands behind the shapes.
    return nameShape(kind,
                     insertMarkup(tree(), markup, childNamed(tree(), ns::presentation, "extLst")));
}

FileShapePtr FileSlide::addFrame(std::string_view kind, std::string_view lock,
                                 const powerpoint::PastePlace& place, std::string_view space,
                                 const std::string& content) {
    return addShape(
        kind, fmt::format(R"(<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr/><p:cNvGraphicFramePr>)"
                          R"(<a:graphicFrameLocks {}="1"/></p:cNvGraphicFramePr><p:nvPr/>)"
                          R"(</p:nvGraphicFramePr><p:xfrm>{}</p:xfrm><a:graphic>)"
                          R"(<a:graphicData uri="{}">{}</a:graphicData></a:graphic>)"
                          R"(</p:graphicFrame>)",
                          lock, boxMarkup(place.corner, place.size), space, content));
}

/// Takes a new element in as the topmost shape, named by its kind and its number.
FileShapePtr FileSlide::nameShape(std::string_view kind, pugi::xml_node element) {
    const std::int32_t id = freeShapeId();
    auto properties = firstElement(firstElement(element));
    attributeFor(properties, "id").set_value(id);
    attributeFor(properties, "name").set_value(fmt::format("{} {}", kind, id - 1).c_str());
    touch();
    shapes_.push_back(std::make_shared<FileShape>(*this, element));
    return shapes_.back();
}

void FileSlide::takeFootOf(FileSlide& other) {
    for (const FileShapePtr& shape : other.shapes()) {
        const auto kind = shape->placeholder();
        if (!kind || !kind->isFoot() || !isNamed(shape->element(), ns::presentation, "sp"))
            continue;
        const auto place = deck_.layouts().placeFor(*kind, layoutPart());
        if (!place) continue;
        static_cast<void>(shapes());
        const auto copy = adopt(tree(), shape->element());
        if (!copy) continue;
        // It is found on its layout by this number, and each layout has its own.
        const auto inner = childNamed(firstElement(copy), ns::presentation, "nvPr");
        attributeFor(childNamed(inner, ns::presentation, "ph"), "idx")
            .set_value(place->index.c_str());
        nameShape(nameOf(*kind), copy);
    }
}

powerpoint::DeckShapePtr FileSlide::addPicture(const std::string& file,
                                               const powerpoint::Point& corner) {
    return addPicture(readPicture(file, deck_.rules().pictures.get()), corner);
}

FileShapePtr FileSlide::addPicture(PictureFile picture, const powerpoint::Point& corner) {
    const Size size = picture.size;
    const std::string blip = addBlip(deck_.package(), part_, deck_.mediaStem(), std::move(picture));
    return addShape(
        "Picture",
        fmt::format(
            R"(<p:pic><p:nvPicPr><p:cNvPr/><p:cNvPicPr><a:picLocks noChangeAspect="1"/>)"
            R"(</p:cNvPicPr><p:nvPr/></p:nvPicPr><p:blipFill>{})"
            R"(<a:stretch><a:fillRect/></a:stretch></p:blipFill><p:spPr><a:xfrm>{}</a:xfrm>)"
            R"(<a:prstGeom prst="rect"><a:avLst/></a:prstGeom></p:spPr></p:pic>)",
            blip, boxMarkup(corner, size)));
}

powerpoint::DeckShapePtr FileSlide::addLabel(const powerpoint::Point& corner, const Size& size) {
    return addShape(
        "TextBox",
        fmt::format(
            R"(<p:sp><p:nvSpPr><p:cNvPr/><p:cNvSpPr txBox="1"/><p:nvPr/></p:nvSpPr>)"
            R"(<p:spPr><a:xfrm>{}</a:xfrm><a:prstGeom prst="rect"><a:avLst/></a:prstGeom>)"
            R"(<a:noFill/></p:spPr><p:txBody><a:bodyPr wrap="square"><a:spAutoFit/></a:bodyPr>)"
            R"(<a:lstStyle/><a:p/></p:txBody></p:sp>)",
            boxMarkup(corner, size)));
}

/// Null for one that goes as a picture.
FileShapePtr FileSlide::pasteChart(const Copied& copied, PasteAs as) {
    SourceChart chart = findChart(copied.source(), *deck_.rules().workbooks);
    if (!chart.obstacle.empty()) {
        if (as == PasteAs::Default) return nullptr;
        refuse("Shapes.PasteSpecial", "The chart can't be linked to: " + chart.obstacle);
    }
    const std::string link =
        as == PasteAs::Linked ? linkAddress(chart.book->path(), deck_.rules().linkBase) : "";
    const std::string part = deck_.charts().add(std::move(chart), copied, link);
    const std::string id = deck_.package().relationshipsOf(part_).add("chart", part);
    const powerpoint::PastePlace place =
        powerpoint::pastePlaceFor({copied.widthPt(), copied.heightPt()}, deck_, *this);
    return addFrame("Chart", "noChangeAspect", place, ns::chart,
                    fmt::format(R"(<c:chart xmlns:c="{}" r:id="{}"/>)", ns::chart, id));
}

powerpoint::DeckShapePtr FileSlide::paste(const Copied& copied, PasteAs as) {
    const CopySource::Kind kind = copied.source().kind;
    if (as == PasteAs::Embedded || (as == PasteAs::Linked && kind == CopySource::Kind::Cells))
        return pasteObject(*this, copied, as);
    if (kind == CopySource::Kind::Cells && as == PasteAs::Default) return pasteTable(*this, copied);
    if (kind == CopySource::Kind::Chart && (as == PasteAs::Default || as == PasteAs::Linked)) {
        if (FileShapePtr chart = pasteChart(copied, as)) return chart;
    } else if (as == PasteAs::Linked) {
        refuse("Shapes.PasteSpecial", "A picture leads to no file that it could be linked to");
    }
    PictureFile picture = pictureOf(copied);
    const powerpoint::PastePlace place = powerpoint::pastePlaceFor(picture.size, deck_, *this);
    picture.size = place.size;
    return addPicture(std::move(picture), place.corner);
}

void FileSlide::removeShape(FileShape& shape) {
    touch();
    shape.element().parent().remove_child(shape.element());
    shape.markGone();
    std::erase_if(shapes_, [&](const auto& held) { return held.get() == &shape; });
}

void FileSlide::remove() {
    deck_.removeSlide(*this);
}

void FileSlide::markGone() {
    isGone_ = true;
    for (const auto& shape : shapes_) shape->markGone();
}

void FileSlide::write() {
    for (const auto& shape : shapes_) shape->write();
    if (isChanged_) deck_.package().replace(part_, xml_->bytes());
    isChanged_ = false;
}

void FileSlide::rest() {
    const auto isHeld = [](const FileShapePtr& shape) { return shape.use_count() > 1; };
    if (isGone_ || !xml_ || std::any_of(shapes_.begin(), shapes_.end(), isHeld)) return;
    write();
    shapes_.clear();
    xml_.reset();
}

}  // namespace office::package
