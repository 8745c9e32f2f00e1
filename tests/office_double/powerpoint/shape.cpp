#include "office_double/powerpoint/shape.h"

#include <algorithm>

#include "office_double/loose_object.h"
#include "office_double/powerpoint/slide.h"
#include "office_double/powerpoint/window.h"

namespace office_double {

namespace {

constexpr std::int32_t roundedRectangle = 5;
constexpr double textMargin = 14.4;

/// Where the n-th character of an UTF-8 text begins, counted from 0.
std::size_t byteOf(const std::string& text, std::int32_t character) {
    std::size_t at = 0;
    while (at < text.size() && character > 0) {
        ++at;
        while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U) ++at;
        --character;
    }
    return at;
}

}  // namespace

const office::MemberTable<Shape>& Shape::members() {
    using Self = Shape;
    using Table = office::MemberTable<Self>;
    static const Table table = [] {
        Table made("Shape");
        made.property("Name", reading(&Self::name_), writing(&Self::name_))
            .property("Title", reading(&Self::title_), writing(&Self::title_))
            .property("AlternativeText", reading(&Self::alternativeText_),
                      writing(&Self::alternativeText_))
            .property("Type",
                      reading([](Self& self) { return static_cast<std::int32_t>(self.kind_); }))
            .property("LockAspectRatio", readingTriState(&Self::lockAspectRatio_),
                      writing(&Self::lockAspectRatio_))
            .property("HasTextFrame",
                      reading([](Self& self) { return triState(self.kind_ != Kind::Picture); }))
            .property("TextFrame", &Self::readTextFrame)
            .property("Shadow", &Self::readShadow)
            .property("Reflection", &Self::readReflection)
            .property("AutoShapeType", &Self::readAutoShapeType, &Self::setAutoShapeType)
            .property("Adjustments", &Self::readAdjustments)
            .property("Parent", reading([](Self& self) { return self.slide().handle(); }))
            .method("Select", {"Replace"}, &Self::select)
            .method("Delete", {}, &Self::deleteShape);
        const auto side = [&](const char* name, double Box::*which) {
            made.property(name, reading([which](Self& self) { return self.box_.*which; }),
                          [which](Self& self, const CallArguments&, const Value& points) {
                              self.resize(which, points.toDouble());
                          });
        };
        side("Left", &Box::left);
        side("Top", &Box::top);
        side("Width", &Box::width);
        side("Height", &Box::height);
        return made;
    }();
    return table;
}

Shape::Shape(Owner slide, Kind kind, std::string name, const Box& box)
    : Doubled(slide),
      kind_(kind),
      name_(std::move(name)),
      box_(box),
      lockAspectRatio_(kind == Kind::Picture) {}

Shape& Shape::text(std::string text) {
    text_ = std::move(text);
    return *this;
}

Shape& Shape::refuseChanges() {
    refusesChanges_ = true;
    return *this;
}

void Shape::write(std::string_view member, const Arguments& arguments, const Value& value) {
    if (refusesChanges_) {
        throw Failure(FailureNumber::ApplicationDefined, "Shape." + std::string(member),
                      "This shape can't be changed");
    }
    Doubled::write(member, arguments, value);
}

Slide& Shape::slide() const {
    return parent<Slide>();
}

void Shape::resize(double Box::*side, double points) {
    const bool sized = side == &Box::width || side == &Box::height;
    if (sized && points < 0) {
        throw Failure(FailureNumber::InvalidProcedureCall, "Shape", "A size can't be negative");
    }
    if (sized && lockAspectRatio_ && box_.*side > 0) {
        double Box::*const otherSide = side == &Box::width ? &Box::height : &Box::width;
        box_.*otherSide *= points / (box_.*side);
    }
    box_.*side = points;
}

void Shape::growWithText() {
    if (kind_ != Kind::TextBox || wordWrap_) return;
    box_.width = textMargin + static_cast<double>(text_.size()) * font_.size * 0.5;
}

void Shape::setAutoShapeType(const Value& type) {
    autoShapeType_ = type.toLong();
    adjustments_.clear();
    if (autoShapeType_ == roundedRectangle) adjustments_.push_back(1.0 / 6);
}

Value Shape::readTextFrame() {
    if (kind_ == Kind::Picture) {
        throw Failure(FailureNumber::ApplicationDefined, "Shape.TextFrame",
                      "A picture has no text");
    }
    auto frame = looseObject(*this, "TextFrame");
    frame->triState("WordWrap", wordWrap_);
    frame->reads("HasText", [this] { return triState(!text_.empty()); });
    frame->reads("TextRange", [this] { return textRange(1, -1); });
    return valueOf(frame);
}

Value Shape::textRange(std::int32_t start, std::int32_t length) {
    auto range = looseObject(*this, "TextRange");
    range->members.property(
        "Text",
        [=, this](LooseObject&, const CallArguments&) {
            if (length < 0) return Value(text_);
            const std::size_t from = byteOf(text_, start - 1);
            return Value(text_.substr(from, byteOf(text_, start - 1 + length) - from));
        },
        [=, this](LooseObject&, const CallArguments&, const Value& text) {
            replaceText(start, length, text.toText());
        });
    range->reads("Font", [this] { return readFont(); });
    range->method("Characters", {"Start", "Length"}, [this](const CallArguments& arguments) {
        return textRange(arguments.at(0, 1).toLong(), arguments.at(1, -1).toLong());
    });
    range->method("Select", {}, [this](const CallArguments&) {
        slide().window().selectText(*this);
        return Value();
    });
    return valueOf(range);
}

void Shape::replaceText(std::int32_t start, std::int32_t length, const std::string& with) {
    if (length < 0) {
        text_ = with;
    } else {
        const std::size_t from = byteOf(text_, start - 1);
        text_.replace(from, byteOf(text_, start - 1 + length) - from, with);
    }
    growWithText();
}

Value Shape::readFont() {
    auto font = looseObject(*this, "Font");
    font->text("Name", font_.name).triState("Bold", font_.bold);
    font->members.property(
        "Size", [this](LooseObject&, const CallArguments&) { return Value(font_.size); },
        [this](LooseObject&, const CallArguments&, const Value& points) {
            font_.size = points.toDouble();
            growWithText();
        });
    font->members.property(
        "Color",
        [this](LooseObject&, const CallArguments&) { return colour("ColorFormat", font_.colour); },
        [this](LooseObject&, const CallArguments&, const Value& rgb) {
            font_.colour = rgb.toLong();
        });
    return valueOf(font);
}

Value Shape::colour(std::string className, std::int32_t& rgb) {
    auto made = looseObject(*this, std::move(className));
    made->whole("RGB", rgb);
    return valueOf(made);
}

Value Shape::readShadow() {
    auto shadow = looseObject(*this, "ShadowFormat");
    shadow->triState("Visible", shadow_.visible)
        .number("Blur", shadow_.blur)
        .number("Size", shadow_.size)
        .number("OffsetX", shadow_.offsetX)
        .number("OffsetY", shadow_.offsetY)
        .number("Transparency", shadow_.transparency)
        .reads("ForeColor", [this] { return colour("ColorFormat", shadow_.colour); });
    return valueOf(shadow);
}

Value Shape::readReflection() {
    auto reflection = looseObject(*this, "ReflectionFormat");
    reflection->number("Offset", reflection_.offset)
        .number("Size", reflection_.size)
        .number("Blur", reflection_.blur)
        .number("Transparency", reflection_.transparency);
    return valueOf(reflection);
}

Value Shape::readAdjustments() {
    auto made = looseObject(*this, "Adjustments");
    made->reads("Count", [this] { return count(adjustments_.size()); });
    const auto at = [this](const Value& index) -> double& {
        const auto number = static_cast<std::size_t>(std::max(0, index.toLong()));
        if (number >= 1 && number <= adjustments_.size()) return adjustments_[number - 1];
        throw Failure(FailureNumber::SubscriptOutOfRange, "Adjustments.Item",
                      "The shape has no such adjustment");
    };
    made->item(
        "Item", "Index", [at](const Value& index) { return Value(at(index)); },
        [at](const Value& index, const Value& value) { at(index) = value.toDouble(); });
    return valueOf(made);
}

Value Shape::select(const CallArguments& arguments) {
    slide().window().selectShape(*this, arguments.at(0, true).toBool());
    return {};
}

Value Shape::deleteShape(const CallArguments&) {
    slide().removeShape(*this);
    return {};
}

}  // namespace office_double
