#include "office/package/presentation/file_shape.h"

#include <array>
#include <cmath>

#include "office/model/powerpoint/objects.h"
#include "office/package/presentation/file_deck.h"
#include "office/package/presentation/file_slide.h"
#include "office/package/presentation/table_markup.h"

namespace office::package {

namespace {

constexpr std::string_view transformOrder = "off ext chOff chExt";

constexpr std::string_view locksOrder =
    "picLocks spLocks cxnSpLocks graphicFrameLocks grpSpLocks stCxn endCxn extLst";

/// The element that says what is locked of a shape, by the shape's own name.
struct Locks {
    const char* shape;
    const char* holder;
    const char* name;
};
constexpr std::array<Locks, 5> lockNames = {{
    {"pic", "cNvPicPr", "picLocks"},
    {"sp", "cNvSpPr", "spLocks"},
    {"cxnSp", "cNvCxnSpPr", "cxnSpLocks"},
    {"graphicFrame", "cNvGraphicFramePr", "graphicFrameLocks"},
    {"grpSp", "cNvGrpSpPr", "grpSpLocks"},
}};

pugi::xml_node shapeIn(pugi::xml_node element) {
    if (!isNamed(element, ns::compatibility, "AlternateContent")) return element;
    for (const pugi::xml_node branch : element.children()) {
        if (const auto shape = firstElement(branch)) return shape;
    }
    return element;
}

pugi::xml_node transformOf(pugi::xml_node shape, pugi::xml_node looks) {
    const auto own = childNamed(shape, ns::presentation, "xfrm");
    return own ? own : childNamed(looks, ns::drawing, "xfrm");
}

/// The picture that an object shows on the slide; null for any other shape.
pugi::xml_node previewIn(pugi::xml_node shape) {
    if (!isNamed(shape, ns::presentation, "graphicFrame")) return {};
    return shape.find_node(
        [](const pugi::xml_node& node) { return isNamed(node, ns::presentation, "pic"); });
}

pugi::xml_node looksOf(pugi::xml_node shape) {
    for (const char* name : {"spPr", "grpSpPr"}) {
        if (const auto own = childNamed(shape, ns::presentation, name)) return own;
    }
    return childNamed(previewIn(shape), ns::presentation, "spPr");
}

double pointsOf(pugi::xml_attribute emu) {
    return emu.as_double() / emuPerPoint;
}

void setEmu(pugi::xml_node node, const char* name, double points) {
    attributeFor(node, name).set_value(emuOf(points));
}

}  // namespace

FileShape::FileShape(FileSlide& slide, pugi::xml_node element)
    : slide_(slide),
      element_(element),
      node_(shapeIn(element)) {}

pugi::xml_node FileShape::changed() {
    slide_.touch();
    return node_;
}

pugi::xml_node FileShape::properties(std::string_view name) const {
    return childNamed(firstElement(node_), ns::presentation, name);
}

bool FileShape::isEmptyPlaceholder() {
    const auto own = placeholder();
    return own && textBody() && words().empty();
}

std::string FileShape::name() {
    return properties("cNvPr").attribute("name").value();
}

void FileShape::setName(const std::string& name) {
    describe("name", name);
}

std::string FileShape::alternativeText() {
    return properties("cNvPr").attribute("descr").value();
}

void FileShape::setAlternativeText(const std::string& text) {
    describe("descr", text);
}

/// Of an object some programs read what it is called from the shape, others from its picture.
void FileShape::describe(const char* attribute, const std::string& text) {
    const auto preview = firstElement(previewIn(changed()));
    for (const auto& holder :
         {properties("cNvPr"), childNamed(preview, ns::presentation, "cNvPr")}) {
        if (holder) attributeFor(holder, attribute).set_value(legible(text).c_str());
    }
}

FileShape::Frame FileShape::frame() {
    const auto read = [](pugi::xml_node transform) -> Frame {
        const auto corner = childNamed(transform, ns::drawing, "off");
        const auto size = childNamed(transform, ns::drawing, "ext");
        return {{pointsOf(corner.attribute("x")), pointsOf(corner.attribute("y"))},
                {pointsOf(size.attribute("cx")), pointsOf(size.attribute("cy"))}};
    };
    if (const auto own = transformOf(node_, looksOf(node_))) return read(own);
    if (const auto kind = placeholder()) {
        for (const auto& shape : slide_.deck().layouts().ancestorsOf(*kind, slide_.layoutPart())) {
            if (const auto inherited = transformOf(shape, looksOf(shape))) return read(inherited);
        }
    }
    return {};
}

void FileShape::setFrame(const Frame& frame) {
    changed();
    auto transform = transformOf(node_, looksOf(node_));
    if (!transform) transform = childInOrder(looks("Left"), ns::drawing, "xfrm", looksOrder);
    write(transform, frame);
    if (auto own = childNamed(previewIn(node_), ns::presentation, "spPr"))
        write(childInOrder(own, ns::drawing, "xfrm", looksOrder), frame);
}

void FileShape::write(pugi::xml_node transform, const Frame& frame) {
    const auto corner = childInOrder(transform, ns::drawing, "off", transformOrder);
    const auto size = childInOrder(transform, ns::drawing, "ext", transformOrder);
    setEmu(corner, "x", frame.corner.left);
    setEmu(corner, "y", frame.corner.top);
    setEmu(size, "cx", frame.size.width);
    setEmu(size, "cy", frame.size.height);
}

powerpoint::Point FileShape::corner() {
    return frame().corner;
}

void FileShape::moveTo(const powerpoint::Point& corner) {
    setFrame({corner, frame().size});
}

Size FileShape::size() {
    return frame().size;
}

void FileShape::resize(const Size& size) {
    const Frame before = frame();
    if (const auto table = tableIn(node_); table && before.size.width > 0 && before.size.height > 0)
        stretchTable(table, size.width / before.size.width, size.height / before.size.height);
    setFrame({before.corner, size});
}

pugi::xml_node FileShape::locks(bool made) {
    for (const Locks& one : lockNames) {
        if (!isNamed(node_, ns::presentation, one.shape)) continue;
        const auto holder = properties(one.holder);
        return made ? childInOrder(holder, ns::drawing, one.name, locksOrder)
                    : childNamed(holder, ns::drawing, one.name);
    }
    return {};
}

bool FileShape::keepsProportions() {
    return locks(false).attribute("noChangeAspect").as_bool();
}

void FileShape::setKeepsProportions(bool keeps) {
    if (keeps == keepsProportions()) return;
    changed();
    attributeFor(locks(true), "noChangeAspect").set_value(keeps ? "1" : "0");
}

pugi::xml_node FileShape::drawnProperties() const {
    return looksOf(node_);
}

pugi::xml_node FileShape::looks(std::string_view member) {
    const auto found = drawnProperties();
    if (!found) refuse("Shape." + std::string(member), "A shape of this kind has no such property");
    return found;
}

}  // namespace office::package
