#include <fmt/format.h>

#include <utility>

#include "office/model/item_index.h"
#include "office/model/word/objects.h"

namespace office::model::word {

namespace {

class ShadowFormat : public DocumentObject<ShadowFormat, TextObject> {
public:
    using DocumentObject::DocumentObject;
    static const MemberTable<ShadowFormat>& members();

private:
    void setType(const Value& number);
    void change(double ObjectShadow::*which, double value) {
        ObjectShadow shadow = part().shadow();
        if (shadow.isShown && shadow.*which == value) return;
        shadow.isShown = true;
        shadow.*which = value;
        part().setShadow(shadow);
    }
};

const MemberTable<ShadowFormat>& ShadowFormat::members() {
    using Self = ShadowFormat;
    static const auto table = [] {
        MemberTable<Self> made("ShadowFormat");
        made.property(
            "Type", {}, unread<Self>,
            [](Self& self, const CallArguments&, const Value& number) { self.setType(number); });
        const auto number = [&](const char* name, double ObjectShadow::*which) {
            made.property(
                name, [which](Self& self) { return self.part().shadow().*which; },
                [which, source = fmt::format("ShadowFormat.{}", name)](Self& self,
                                                                       const Value& value) {
                    self.change(which, numberWithin(0, furthestPt, value, source));
                });
        };
        number("Size", &ObjectShadow::size);
        number("Blur", &ObjectShadow::blur);
        return made;
    }();
    return table;
}

/// All of Word's ready-made shadows that fall outside come as one here.
void ShadowFormat::setType(const Value& number) {
    constexpr double types = 43;
    static_cast<void>(numberWithin(1, types, number, "ShadowFormat.Type"));
    ObjectShadow shadow = part().shadow();
    shadow.isShown = true;
    part().setShadow(shadow);
}

double lengthPt(const Value& points, const std::string& source) {
    const double length = numberWithin(0, furthestPt, points, source);
    if (!(length > 0))
        refuseCall(source,
                   fmt::format("{}: nothing can be {} points wide or high", source, length));
    return length;
}

/// The members that objects in a line and over the text have in common.
template <class Self>
class ShapeMembers : public DocumentObject<Self, TextObject> {
public:
    using DocumentObject<Self, TextObject>::DocumentObject;

    static MemberTable<Self> table(const char* className) {
        MemberTable<Self> made(className);
        const auto side = [&](const char* name, double Size::*which) {
            made.property(
                name, [which](Self& self) { return self.part().size().*which; },
                [which, source = fmt::format("{}.{}", className, name)](Self& self,
                                                                        const Value& points) {
                    Size size = self.part().size();
                    size.*which = lengthPt(points, source);
                    self.part().resize(size);
                });
        };
        side("Width", &Size::width);
        side("Height", &Size::height);
        made.property(
            "AlternativeText", [](Self& self) { return self.part().alternativeText(); },
            [](Self& self, const Value& text) { self.part().setAlternativeText(text.toText()); });
        made.property("Shadow", [](Self& self) {
            return makeObject<ShadowFormat>(self.home(), self.home().part);
        });
        made.method("Select", {}, [](Self& self) { self.part().select(); });
        return made;
    }
};

class InlineShape : public ShapeMembers<InlineShape> {
public:
    using ShapeMembers::ShapeMembers;
    static const MemberTable<InlineShape>& members() {
        static const auto all = table("InlineShape");
        return all;
    }
};

/// A shape over the text, or the range of the one that is selected.
class Shape : public ShapeMembers<Shape> {
public:
    using ShapeMembers::ShapeMembers;
    static const MemberTable<Shape>& members() {
        // An unset value is 0, as everywhere in automation.
        static const auto all = table("Shape").property(
            "Left", {}, unread<Shape>,
            [](Shape& self, const CallArguments& arguments, const Value& points) {
                self.part().setLeft(points.isEmpty() ? 0
                                                     : numberWithin(-furthestPt, furthestPt, points,
                                                                    arguments.source()));
            });
        return all;
    }
};

/// The objects of one anchoring, in the order of reading.
template <class Self, class One, Anchoring anchoring>
class Objects : public DocumentObject<Self> {
public:
    using DocumentObject<Self>::DocumentObject;

    static MemberTable<Self> table(const char* className) {
        return MemberTable<Self>(className)
            .property("Count", [](Self& self) { return self.document().objectCount(anchoring); })
            .property("Item", {"Index"}, [](Self& self, const CallArguments& arguments) {
                const std::int32_t place = arguments.at(0).toLong();
                const auto object = self.document().objectAt(anchoring, place);
                if (!object) ItemIndex(place, arguments.source()).fail();
                return makeObject<One>(self.home(), object);
            });
    }
};

class InlineShapes : public Objects<InlineShapes, InlineShape, Anchoring::Inline> {
public:
    using Objects::Objects;
    static const MemberTable<InlineShapes>& members() {
        static const auto all = table("InlineShapes");
        return all;
    }
};

/// What a selection holds of them: the one that has just been put in.
class SelectedInlineShapes : public DocumentObject<SelectedInlineShapes> {
public:
    using DocumentObject::DocumentObject;
    static const MemberTable<SelectedInlineShapes>& members() {
        using Self = SelectedInlineShapes;
        static const auto all =
            MemberTable<Self>("InlineShapes")
                .property("Count", [](Self& self) { return self.pasted() ? 1 : 0; })
                .property("Item", {"Index"},
                          [](Self& self, const CallArguments& arguments) {
                              const std::int32_t place = arguments.at(0).toLong();
                              const auto object = self.pasted();
                              if (!object || place != 1)
                                  ItemIndex(place, arguments.source()).fail();
                              return makeObject<InlineShape>(self.home(), object);
                          })
                .method("AddPicture", {"FileName", "LinkToFile", "SaveWithDocument"},
                        &Self::addPicture);
        return all;
    }

private:
    /// In the place of what is selected.
    Object addPicture(const CallArguments& arguments) {
        if (arguments.at(1, false).toBool())
            refuseCall(arguments.source(), "A picture can't be linked here");
        document().addPicture(arguments.at(0).toText());
        return makeObject<InlineShape>(home(), pasted());
    }
    [[nodiscard]] TextObjectPtr pasted() const {
        auto object = document().pasted();
        return object && object->anchoring() == Anchoring::Inline ? object : nullptr;
    }
};

class Shapes : public Objects<Shapes, Shape, Anchoring::Floating> {
public:
    using Objects::Objects;
    static const MemberTable<Shapes>& members() {
        static const auto all = table("Shapes");
        return all;
    }
};

}  // namespace

Object inlineShapesObject(const InDocument& home) {
    return makeObject<InlineShapes>(home);
}

Object shapesObject(const InDocument& home) {
    return makeObject<Shapes>(home);
}

Object selectedInlineShapesObject(const InDocument& home) {
    return makeObject<SelectedInlineShapes>(home);
}

Object selectedShapeObject(const InDocument& home, const std::string& source) {
    auto object = home.document->selectedObject();
    if (!object) object = home.document->pasted();
    if (!object || object->anchoring() != Anchoring::Floating)
        refuse(source, "Nothing that stands over the text is selected");
    return makeObject<Shape>(home, object);
}

}  // namespace office::model::word
