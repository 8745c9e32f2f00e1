#include "office/libreoffice/powerpoint/impress_shape.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/powerpoint/hidden_step.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/powerpoint/impress_slide.h"
#include "office/libreoffice/powerpoint/title_look.h"
#include "office/libreoffice/units.h"
#include "office/text.h"

namespace libreoffice::powerpoint {

namespace {

constexpr std::string_view placeholderServices = "com.sun.star.presentation.";
constexpr std::string_view drawingServices = "com.sun.star.drawing.";

/// What PowerPoint lets hold text, by the service's name behind the common part. LibreOffice lets
/// pictures and lines hold text too.
constexpr std::array<std::string_view, 6> textShapes = {"CustomShape",      "RectangleShape",
                                                        "EllipseShape",     "TextShape",
                                                        "PolyPolygonShape", "ClosedBezierShape"};
constexpr std::array<std::string_view, 9> textPlaceholders = {
    "TitleTextShape", "OutlinerShape", "SubtitleShape",    "NotesShape", "HeaderShape",
    "FooterShape",    "DateTimeShape", "SlideNumberShape", "TextShape"};

/// How LibreOffice calls the kind of an embedded object.
constexpr const char* workbookClass = "47BBB4CB-CE4C-4E80-A591-42D9AE74950F";
constexpr const char* unknownClass = "00000000-0000-0000-0000-000000000000";

template <std::size_t Count>
bool isAmong(const std::array<std::string_view, Count>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

std::string serviceOf(const uno::Reference<css::drawing::XShape>& shape) {
    // The call is marked as outdated and has no successor that names the one service in one call.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    return fromUno(shape->getShapeType());
#pragma GCC diagnostic pop
}

ImpressShape::ImpressShape(uno::Reference<css::drawing::XShape> shape, ImpressSlide& slide)
    : shape_(std::move(shape)),
      slide_(slide) {}

bool ImpressShape::isTitle() {
    return service() == "com.sun.star.presentation.TitleTextShape";
}

rtl::OUString ImpressShape::workbook() {
    if (!service().ends_with(".OLE2Shape") && !service().ends_with(".CalcShape")) return {};
    const NamedValues values = several({"CLSID", "PersistName"});
    const auto kind = values.get<rtl::OUString>("CLSID");
    const bool isWorkbook =
        kind.equalsIgnoreAsciiCaseAscii(workbookClass) || kind.equalsAscii(unknownClass);
    return isWorkbook ? values.get<rtl::OUString>("PersistName") : rtl::OUString();
}

void ImpressShape::wear(std::shared_ptr<const TitleLook> look) {
    look->applyToFrame(shape_);
    look_ = std::move(look);
}

bool ImpressShape::isGone() const {
    return isGone_ || slide_.isGone();
}

std::string ImpressShape::name() {
    return fromUno(get<rtl::OUString>("Name"));
}

void ImpressShape::setName(const std::string& name) {
    setNamed(name, {});
}

void ImpressShape::setNamed(const std::string& name, NamedValues values) {
    const HiddenStep hidden(slide_.deck());
    values.add("Name", toUno(name));
    set(values);
}

std::string ImpressShape::alternativeText() {
    return fromUno(get<rtl::OUString>("Description"));
}

void ImpressShape::setAlternativeText(const std::string& text) {
    const HiddenStep hidden(slide_.deck());
    set("Description", toUno(text));
}

model::Point ImpressShape::corner() {
    const css::awt::Point corner = shape_->getPosition();
    return {pointsOf(corner.X), pointsOf(corner.Y)};
}

void ImpressShape::moveTo(const model::Point& corner) {
    shape_->setPosition({hundredthMmOf(corner.left), hundredthMmOf(corner.top)});
}

office::Size ImpressShape::size() {
    const css::awt::Size size = shape_->getSize();
    return {pointsOf(size.Width), pointsOf(size.Height)};
}

void ImpressShape::resize(const office::Size& size) {
    shape_->setSize({hundredthMmOf(size.width), hundredthMmOf(size.height)});
}

bool ImpressShape::keepsProportions() {
    if (!keepsProportions_) keepsProportions_ = isPicture();
    return *keepsProportions_;
}

model::ShapeText* ImpressShape::textFrame() {
    return holdsText() ? this : nullptr;
}

std::string ImpressShape::words() {
    return fromUno(text()->getString().replace('\n', '\r'));
}

void ImpressShape::setWords(const std::string& words) {
    const rtl::OUString paragraphs =
        toUno(office::replaceAll(office::replaceAll(words, "\r\n", "\n"), "\r", "\n"));
    keepingCorner([&] { text()->setString(paragraphs); });
    if (words.empty()) return;
    if (const auto look = std::exchange(look_, nullptr)) look->applyToText(shape_);
}

bool ImpressShape::wraps() {
    return get<bool>("TextWordWrap");
}

void ImpressShape::setWraps(bool wraps) {
    const bool fits = get<bool>("TextAutoGrowHeight");
    keepingCorner([&] {
        set({{"TextWordWrap", uno::Any(wraps)}, {"TextAutoGrowWidth", uno::Any(fits && !wraps)}});
    });
}

office::Font ImpressShape::font() {
    const NamedValues values = several({"CharColor", "CharFontName", "CharHeight"});
    return {.name = fromUno(values.get<rtl::OUString>("CharFontName")),
            .sizePt = values.get<float>("CharHeight"),
            .colour = swapRedAndBlue(values.get<sal_Int32>("CharColor"))};
}

void ImpressShape::setFont(const model::FontChange& change) {
    keepingCorner([&] {
        if (change.name) set("CharFontName", toUno(*change.name));
        if (change.sizePt) set("CharHeight", static_cast<float>(*change.sizePt));
        if (change.colour) set("CharColor", swapRedAndBlue(*change.colour));
    });
}

const uno::Reference<css::beans::XPropertySet>& ImpressShape::properties() {
    if (!properties_.is()) properties_ = as<css::beans::XPropertySet>(shape_);
    return properties_;
}

const uno::Reference<css::beans::XMultiPropertySet>& ImpressShape::severalProperties() {
    if (!severalProperties_.is()) severalProperties_ = as<css::beans::XMultiPropertySet>(shape_);
    return severalProperties_;
}

const std::string& ImpressShape::service() {
    if (service_.empty()) service_ = serviceOf(shape_);
    return service_;
}

bool ImpressShape::isPicture() {
    return service().ends_with(".GraphicObjectShape");
}

bool ImpressShape::isCustomShape() {
    return service() == "com.sun.star.drawing.CustomShape";
}

bool ImpressShape::isPlaceholder() {
    return service().starts_with(placeholderServices);
}

bool ImpressShape::holdsText() {
    const std::string_view name = service();
    if (isPlaceholder()) return isAmong(textPlaceholders, name.substr(placeholderServices.size()));
    return name.starts_with(drawingServices) &&
           isAmong(textShapes, name.substr(drawingServices.size()));
}

const uno::Reference<css::text::XText>& ImpressShape::text() {
    if (!text_.is()) text_ = as<css::text::XText>(shape_);
    return text_;
}

/// Runs a change that makes the shape grow or shrink with its text. LibreOffice grows it to all
/// sides, PowerPoint from its upper left corner: the corner is put back where it was.
void ImpressShape::keepingCorner(const std::function<void()>& change) {
    // A placeholder stays where the layout has it; once it is put somewhere it would no longer
    // follow the layout.
    if (isPlaceholder()) return change();
    const css::awt::Point corner = shape_->getPosition();
    change();
    shape_->setPosition(corner);
}

}  // namespace libreoffice::powerpoint
