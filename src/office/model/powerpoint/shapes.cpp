#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "office/model/item_index.h"
#include "office/model/powerpoint/objects.h"
#include "office/model/powerpoint/paste.h"

namespace office::model::powerpoint {

namespace {

/// A shape keeps at least this of each side, so that it stays a shape whatever one side takes from
/// the other.
constexpr double smallestSidePt = 0.1;

double placePt(const Value& points, const std::string& source) {
    return numberWithin(-furthestPt, furthestPt, points, source);
}

double lengthPt(const Value& points, const std::string& source) {
    const double length = placePt(points, source);
    if (!(length > 0))
        refuseCall(source,
                   fmt::format("{}: a shape can't be {} points wide or high", source, length));
    return std::max(length, smallestSidePt);
}

void moveTo(DeckShape& shape, double Point::*edge, double toPt) {
    Point corner = shape.corner();
    corner.*edge = toPt;
    shape.moveTo(corner);
}

void resize(DeckShape& shape, double Size::*side, double toPt) {
    Size size = shape.size();
    double Size::*const other = side == &Size::width ? &Size::height : &Size::width;
    if (shape.keepsProportions() && size.*side > 0 && size.*other > 0)
        size.*other = std::max(size.*other * toPt / (size.*side), smallestSidePt);
    size.*side = toPt;
    shape.resize(size);
}

Outline outlineOf(const Value& number, const std::string& source) {
    const auto wanted = static_cast<Outline>(number.toLong());
    if (wanted != Outline::Rectangle && wanted != Outline::RoundedRectangle)
        refuseCall(source, fmt::format("There is no outline {} here", number.toLong()));
    return wanted;
}

class Shape : public DeckObject<Shape, DeckShape> {
public:
    using DeckObject::DeckObject;
    static const MemberTable<Shape>& members();

private:
    template <class Read>
    static auto reads(Read read) {
        return [read](Shape& self) { return std::invoke(read, self.part()); };
    }
    /// `change` takes a shape and the value.
    template <class Change>
    static auto writes(Change change) {
        return [change](Shape& self, const Value& value) { change(self.part(), value); };
    }
    static auto gives(Object (*make)(const InDeck&, const DeckShapePtr&)) {
        return [make](Shape& self) { return make(self.home(), self.home().part); };
    }
};

const MemberTable<Shape>& Shape::members() {
    static const auto all = [] {
        MemberTable<Shape> table("Shape");
        table
            .property(
                "Name", reads(&DeckShape::name),
                writes([](DeckShape& shape, const Value& name) { shape.setName(name.toText()); }))
            .property("AlternativeText", reads(&DeckShape::alternativeText),
                      writes([](DeckShape& shape, const Value& text) {
                          shape.setAlternativeText(text.toText());
                      }))
            .property("LockAspectRatio",
                      reads([](DeckShape& shape) { return triState(shape.keepsProportions()); }),
                      writes([](DeckShape& shape, const Value& on) {
                          shape.setKeepsProportions(on.toBool());
                      }))
            .property("AutoShapeType", reads([](DeckShape& shape) {
                          return static_cast<std::int32_t>(shape.outline());
                      }),
                      writes([](DeckShape& shape, const Value& number) {
                          shape.setOutline(outlineOf(number, "Shape.AutoShapeType"));
                      }))
            .property("TextFrame", gives(textFrameObject))
            .property("Shadow", gives(shadowObject))
            .property("Reflection", gives(reflectionObject))
            .property("Adjustments", gives(adjustmentsObject))
            .method("Select", {},
                    [](Shape& self) { self.deck().window().select(self.home().part); });
        const auto edge = [&](const std::string& name, double Point::*which) {
            table.property(
                name, reads([which](DeckShape& shape) { return shape.corner().*which; }),
                writes([which, source = "Shape." + name](DeckShape& shape, const Value& to) {
                    moveTo(shape, which, placePt(to, source));
                }));
        };
        edge("Left", &Point::left);
        edge("Top", &Point::top);
        const auto side = [&](const std::string& name, double Size::*which) {
            table.property(
                name, reads([which](DeckShape& shape) { return shape.size().*which; }),
                writes([which, source = "Shape." + name](DeckShape& shape, const Value& to) {
                    resize(shape, which, lengthPt(to, source));
                }));
        };
        side("Width", &Size::width);
        side("Height", &Size::height);
        return table;
    }();
    return all;
}

class Shapes : public DeckObject<Shapes, DeckSlide> {
public:
    using DeckObject::DeckObject;
    static const MemberTable<Shapes>& members();

private:
    Object item(const CallArguments& arguments);
    Object title(const CallArguments& arguments);
    Object addPicture(const CallArguments& arguments);
    Object addLabel(const CallArguments& arguments);
};

const MemberTable<Shapes>& Shapes::members() {
    using Self = Shapes;
    static const auto table =
        MemberTable<Self>("Shapes")
            .property("Count", [](Self& self) { return self.part().shapeCount(); })
            .property("Item", {"Index"}, &Self::item)
            .property("Title", {}, &Self::title)
            .method(
                "AddPicture",
                {"FileName", "LinkToFile", "SaveWithDocument", "Left", "Top", "Width", "Height"},
                &Self::addPicture)
            .method("AddLabel", {"Orientation", "Left", "Top", "Width", "Height"}, &Self::addLabel)
            .method("PasteSpecial",
                    {"DataType", "DisplayAsIcon", "IconFileName", "IconIndex", "IconLabel", "Link"},
                    [](Self& self, const CallArguments& arguments) {
                        return shapeObject(self.home(),
                                           pasteSpecial(self.deck(), self.part(), arguments));
                    });
    return table;
}

Object Shapes::item(const CallArguments& arguments) {
    const std::int32_t place = arguments.at(0).toLong();
    const auto shape = part().shapeAt(place);
    if (!shape) ItemIndex(place, arguments.source()).fail();
    return shapeObject(home(), shape);
}

Object Shapes::title(const CallArguments& arguments) {
    const auto shape = part().titleShape();
    if (!shape) refuse(arguments.source(), "The slide has no title");
    return shapeObject(home(), shape);
}

/// A side that is given alone brings the other one along.
Object Shapes::addPicture(const CallArguments& arguments) {
    constexpr double ownSize = -1;
    const std::string& source = arguments.source();
    if (arguments.at(1, false).toBool()) refuseCall(source, "A picture can't be linked here");
    const Point corner{placePt(arguments.at(3, 0), source), placePt(arguments.at(4, 0), source)};
    const auto side = [&](std::size_t position) {
        const Value given = arguments.at(position, ownSize);
        return given.toDouble() == ownSize ? ownSize : lengthPt(given, source);
    };
    const double width = side(5);
    const double height = side(6);
    const auto picture = part().addPicture(arguments.at(0).toText(), corner);
    if (width != ownSize && height != ownSize) {
        picture->resize({width, height});
    } else if (width != ownSize) {
        resize(*picture, &Size::width, width);
    } else if (height != ownSize) {
        resize(*picture, &Size::height, height);
    }
    return shapeObject(home(), picture);
}

Object Shapes::addLabel(const CallArguments& arguments) {
    constexpr std::int32_t horizontal = 1;
    const std::string& source = arguments.source();
    if (arguments.at(0).toLong() != horizontal)
        refuseCall(source, "Only horizontal text can be added");
    const Point corner{placePt(arguments.at(1), source), placePt(arguments.at(2), source)};
    const Size size{lengthPt(arguments.at(3), source), lengthPt(arguments.at(4), source)};
    return shapeObject(home(), part().addLabel(corner, size));
}

}  // namespace

Object shapesObject(const InDeck& home, const DeckSlidePtr& slide) {
    return makeObject<Shapes>(home, slide);
}

Object shapeObject(const InDeck& home, const DeckShapePtr& shape) {
    return makeObject<Shape>(home, shape);
}

}  // namespace office::model::powerpoint
