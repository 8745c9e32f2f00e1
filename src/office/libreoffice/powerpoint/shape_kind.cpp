#include "office/libreoffice/powerpoint/shape_kind.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace libreoffice::powerpoint {

namespace {

constexpr std::int32_t autoShape = 1;
constexpr std::int32_t chart = 3;
constexpr std::int32_t freeform = 5;
constexpr std::int32_t group = 6;
constexpr std::int32_t embeddedObject = 7;
constexpr std::int32_t line = 9;
constexpr std::int32_t linkedObject = 10;
constexpr std::int32_t picture = 13;
constexpr std::int32_t placeholder = 14;
constexpr std::int32_t media = 16;
constexpr std::int32_t textBox = 17;
constexpr std::int32_t table = 19;

constexpr std::string_view drawingServices = "com.sun.star.drawing.";
constexpr std::string_view chartClass = "12DCAE26-281F-416F-a234-c3086127382e";

struct Kind {
    std::string_view service;
    std::int32_t type;
    bool holdsText;
};

/// By the service's name behind the drawing services' common part.
constexpr std::array<Kind, 14> kinds = {{
    {"CustomShape", autoShape, true},
    {"RectangleShape", autoShape, true},
    {"EllipseShape", autoShape, true},
    {"TextShape", textBox, true},
    {"GraphicObjectShape", picture, false},
    {"GroupShape", group, false},
    {"LineShape", line, false},
    {"ConnectorShape", autoShape, false},
    {"PolyPolygonShape", freeform, true},
    {"PolyLineShape", freeform, false},
    {"ClosedBezierShape", freeform, true},
    {"OpenBezierShape", freeform, false},
    {"TableShape", table, false},
    {"MediaShape", media, false},
}};

const Kind* kindOf(HeldShape& shape) {
    const std::string_view service = shape.service();
    if (!service.starts_with(drawingServices)) return nullptr;
    const auto* found = std::find_if(kinds.begin(), kinds.end(), [&](const Kind& kind) {
        return kind.service == service.substr(drawingServices.size());
    });
    return found != kinds.end() ? found : nullptr;
}

std::int32_t objectTypeOf(HeldShape& shape) {
    if (fromUno(shape.get<rtl::OUString>("CLSID")) == chartClass) return chart;
    return shape.get<rtl::OUString>("LinkURL").isEmpty() ? embeddedObject : linkedObject;
}

}  // namespace

std::int32_t shapeTypeOf(HeldShape& shape) {
    if (shape.isPlaceholder()) return placeholder;
    if (shape.service() == "com.sun.star.drawing.OLE2Shape") return objectTypeOf(shape);
    const Kind* kind = kindOf(shape);
    return kind != nullptr ? kind->type : autoShape;
}

bool hasTextFrameIn(HeldShape& shape) {
    constexpr std::array<std::string_view, 9> textPlaceholders = {
        "TitleTextShape", "OutlinerShape", "SubtitleShape",    "NotesShape", "HeaderShape",
        "FooterShape",    "DateTimeShape", "SlideNumberShape", "TextShape"};
    if (shape.isPlaceholder()) {
        const std::string_view service = shape.service();
        return std::any_of(textPlaceholders.begin(), textPlaceholders.end(),
                           [&](std::string_view name) { return service.ends_with(name); });
    }
    const Kind* kind = kindOf(shape);
    return kind != nullptr && kind->holdsText;
}

}  // namespace libreoffice::powerpoint
