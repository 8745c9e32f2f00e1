#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "office/model/powerpoint/objects.h"

namespace office::model::powerpoint {

namespace {

/// Base of the objects that are a part of one shape.
template <class Self>
class ShapePart : public DeckObject<Self, DeckShape> {
public:
    using DeckObject<Self, DeckShape>::DeckObject;

    /// Of a shape that was found to hold text.
    [[nodiscard]] ShapeText& text() const { return *this->part().textFrame(); }

    /// A part of the same shape.
    template <class Other>
    [[nodiscard]] Object other() const {
        return makeObject<Other>(this->home(), this->home().part);
    }
};

class FontColor : public ShapePart<FontColor> {
public:
    using ShapePart::ShapePart;

    static const MemberTable<FontColor>& members() {
        using Self = FontColor;
        static const auto table =
            MemberTable<Self>("ColorFormat")
                .property(
                    "RGB", [](Self& self) { return self.text().font().colour; },
                    [](Self& self, const Value& colour) {
                        self.text().setFont({.name = {}, .sizePt = {}, .colour = colour.toLong()});
                    });
        return table;
    }
};

class ShapeFont : public ShapePart<ShapeFont> {
public:
    using ShapePart::ShapePart;

    static const MemberTable<ShapeFont>& members() {
        using Self = ShapeFont;
        static const auto table =
            MemberTable<Self>("Font")
                .property(
                    "Name", [](Self& self) { return self.text().font().name; },
                    [](Self& self, const Value& name) {
                        self.text().setFont({.name = name.toText(), .sizePt = {}, .colour = {}});
                    })
                .property(
                    "Size", [](Self& self) { return self.text().font().sizePt; },
                    [](Self& self, const Value& points) {
                        const double sizePt = numberWithin(1, 4000, points, "Font.Size");
                        self.text().setFont({.name = {}, .sizePt = sizePt, .colour = {}});
                    })
                .property("Color", [](Self& self) { return self.other<FontColor>(); });
        return table;
    }
};

class TextRange : public ShapePart<TextRange> {
public:
    using ShapePart::ShapePart;

    static const MemberTable<TextRange>& members() {
        using Self = TextRange;
        static const auto table =
            MemberTable<Self>("TextRange")
                .property(
                    "Text", [](Self& self) { return self.text().words(); },
                    [](Self& self, const Value& words) { self.text().setWords(words.toText()); })
                .property("Font", [](Self& self) { return self.other<ShapeFont>(); });
        return table;
    }
};

class TextFrame : public ShapePart<TextFrame> {
public:
    using ShapePart::ShapePart;

    static const MemberTable<TextFrame>& members() {
        using Self = TextFrame;
        static const auto table =
            MemberTable<Self>("TextFrame")
                .property(
                    "WordWrap", [](Self& self) { return triState(self.text().wraps()); },
                    [](Self& self, const Value& on) { self.text().setWraps(on.toBool()); })
                .property("TextRange", [](Self& self) { return self.other<TextRange>(); });
        return table;
    }
};

Shadow plainShadow(double offsetPt) {
    constexpr std::int32_t grey = 0x808080;
    return {.isVisible = true, .offsetXPt = offsetPt, .offsetYPt = offsetPt, .colour = grey};
}

/// Whatever is set of a shape that has no shadow gives it one, straight behind the shape at first.
template <class Type>
void changeShadow(DeckShape& shape, Type Shadow::*which, Type value) {
    Shadow shadow = shape.shadow();
    if (!shadow.isVisible) shadow = plainShadow(0);
    shadow.*which = value;
    shape.setShadow(shadow);
}

class ShadowColor : public ShapePart<ShadowColor> {
public:
    using ShapePart::ShapePart;

    static const MemberTable<ShadowColor>& members() {
        using Self = ShadowColor;
        static const auto table =
            MemberTable<Self>("ColorFormat")
                .property(
                    "RGB", [](Self& self) { return self.part().shadow().colour; },
                    [](Self& self, const Value& colour) {
                        changeShadow(self.part(), &Shadow::colour, colour.toLong());
                    });
        return table;
    }
};

class ShadowFormat : public ShapePart<ShadowFormat> {
public:
    using ShapePart::ShapePart;
    static const MemberTable<ShadowFormat>& members();

private:
    void setVisible(const Value& on);
};

const MemberTable<ShadowFormat>& ShadowFormat::members() {
    using Self = ShadowFormat;
    static const auto table = [] {
        MemberTable<Self> made("ShadowFormat");
        made.property(
                "Visible", [](Self& self) { return triState(self.part().shadow().isVisible); },
                &Self::setVisible)
            .property("ForeColor", [](Self& self) { return self.other<ShadowColor>(); });
        const auto number = [&](const char* name, double Shadow::*which, double lowest) {
            made.property(
                name, [which](Self& self) { return self.part().shadow().*which; },
                [which, lowest](Self& self, const Value& value) {
                    changeShadow(self.part(), which,
                                 numberWithin(lowest, furthestPt, value, "ShadowFormat"));
                });
        };
        number("Blur", &Shadow::blurPt, 0);
        number("Size", &Shadow::sizePercent, 0);
        number("OffsetX", &Shadow::offsetXPt, -furthestPt);
        number("OffsetY", &Shadow::offsetYPt, -furthestPt);
        return made;
    }();
    return table;
}

void ShadowFormat::setVisible(const Value& on) {
    /// Where PowerPoint throws a shadow that is merely made visible.
    constexpr double plainOffsetPt = 2;
    Shadow shadow = part().shadow();
    if (shadow.isVisible == on.toBool()) return;
    if (on.toBool())
        shadow = plainShadow(plainOffsetPt);
    else
        shadow.isVisible = false;
    part().setShadow(shadow);
}

class ReflectionFormat : public ShapePart<ReflectionFormat> {
public:
    using ShapePart::ShapePart;

    static const MemberTable<ReflectionFormat>& members() {
        using Self = ReflectionFormat;
        static const auto table = [] {
            MemberTable<Self> made("ReflectionFormat");
            const auto number = [&](const char* name, double Reflection::*which, double highest) {
                made.property(
                    name, [which](Self& self) { return self.part().reflection().*which; },
                    [which, highest](Self& self, const Value& value) {
                        self.change(which, numberWithin(0, highest, value, "ReflectionFormat"));
                    });
            };
            number("Offset", &Reflection::offsetPt, furthestPt);
            number("Size", &Reflection::sizePercent, 100);
            return made;
        }();
        return table;
    }

private:
    void change(double Reflection::*which, double value) {
        /// What PowerPoint mirrors of a shape that got a reflection without a size.
        constexpr double plainPercent = 35;
        Reflection reflection = part().reflection();
        if (reflection.sizePercent == 0) reflection.sizePercent = plainPercent;
        reflection.*which = value;
        part().setReflection(reflection);
    }
};

class Adjustments : public ShapePart<Adjustments> {
public:
    using ShapePart::ShapePart;

    static const MemberTable<Adjustments>& members() {
        using Self = Adjustments;
        static const auto table =
            MemberTable<Self>("Adjustments")
                .property(
                    "Item", {"Index"},
                    [](Self& self, const CallArguments& arguments) {
                        const std::int32_t place = arguments.at(0).toLong();
                        const auto value = self.part().adjustment(place);
                        if (!value) failWithout(place, arguments.source());
                        return *value;
                    },
                    [](Self& self, const CallArguments& arguments, const Value& value) {
                        const std::int32_t place = arguments.at(0).toLong();
                        const double number =
                            numberWithin(-furthestPt, furthestPt, value, arguments.source());
                        if (!self.part().setAdjustment(place, number))
                            failWithout(place, arguments.source());
                    });
        return table;
    }

private:
    [[noreturn]] static void failWithout(std::int32_t place, const std::string& source) {
        throw Failure(FailureNumber::SubscriptOutOfRange, source,
                      fmt::format("The shape has no adjustment {}", place));
    }
};

}  // namespace

Object textFrameObject(const InDeck& home, const DeckShapePtr& shape) {
    if (shape->textFrame() == nullptr) refuse("Shape.TextFrame", "The shape holds no text");
    return makeObject<TextFrame>(home, shape);
}

Object shadowObject(const InDeck& home, const DeckShapePtr& shape) {
    return makeObject<ShadowFormat>(home, shape);
}

Object reflectionObject(const InDeck& home, const DeckShapePtr& shape) {
    return makeObject<ReflectionFormat>(home, shape);
}

Object adjustmentsObject(const InDeck& home, const DeckShapePtr& shape) {
    return makeObject<Adjustments>(home, shape);
}

}  // namespace office::model::powerpoint
