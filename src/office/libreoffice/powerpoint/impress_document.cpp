#include "office/libreoffice/powerpoint/impress_document.h"

#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/drawing/XMasterPagesSupplier.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/presentation/XPresentationSupplier.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <utility>

#include "office/failure.h"

namespace libreoffice::powerpoint {

namespace {

using office::Failure;
using office::FailureNumber;

bool isMasterPage(const uno::Reference<css::drawing::XDrawPage>& page) {
    return as<css::lang::XServiceInfo>(page)->supportsService("com.sun.star.drawing.MasterPage");
}

std::int32_t inProportion(std::int32_t length, std::int32_t before, std::int32_t after) {
    return static_cast<std::int32_t>(std::lround(static_cast<double>(length) * after / before));
}

void resizeShapes(const uno::Reference<css::drawing::XDrawPage>& page, const css::awt::Size& before,
                  const css::awt::Size& after) {
    const sal_Int32 count = page->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const uno::Reference<css::drawing::XShape> shape(page->getByIndex(i), uno::UNO_QUERY_THROW);
        const css::awt::Point corner = shape->getPosition();
        const css::awt::Size size = shape->getSize();
        shape->setSize({inProportion(size.Width, before.Width, after.Width),
                        inProportion(size.Height, before.Height, after.Height)});
        shape->setPosition({inProportion(corner.X, before.Width, after.Width),
                            inProportion(corner.Y, before.Height, after.Height)});
    }
}

}  // namespace

ImpressDocument::ImpressDocument(uno::Reference<css::frame::XModel> opened)
    : Document(std::move(opened)),
      slides_(as<css::drawing::XDrawPagesSupplier>(model())->getDrawPages()),
      factory_(as<css::lang::XMultiServiceFactory>(model())),
      window_(model()),
      layouts_(model()) {}

css::awt::Size ImpressDocument::slideSize() {
    const auto& first = pageAt(1)->properties();
    css::awt::Size size;
    first->getPropertyValue("Width") >>= size.Width;
    first->getPropertyValue("Height") >>= size.Height;
    return size;
}

void ImpressDocument::setSlideSize(const css::awt::Size& size) {
    const css::awt::Size before = slideSize();
    setProperties(pageAt(1)->properties(),
                  {{"Width", uno::Any(size.Width)}, {"Height", uno::Any(size.Height)}});
    const auto masters = as<css::drawing::XMasterPagesSupplier>(model())->getMasterPages();
    const sal_Int32 count = masters->getCount();
    for (sal_Int32 i = 0; i < count; ++i)
        resizeShapes(
            uno::Reference<css::drawing::XDrawPage>(masters->getByIndex(i), uno::UNO_QUERY_THROW),
            before, size);
}

std::int32_t ImpressDocument::slideCount() {
    return beginsWithoutSlides_ ? 0 : slides_->getCount();
}

HeldPagePtr ImpressDocument::slide(std::int32_t place) {
    if (beginsWithoutSlides_ || place < 1)
        throw Failure(FailureNumber::SubscriptOutOfRange, "Slides.Item",
                      fmt::format("There is no slide {}", place));
    return pageAt(place);
}

HeldPagePtr ImpressDocument::pageAt(std::int32_t place) {
    return held(uno::Reference<css::drawing::XDrawPage>(slides_->getByIndex(place - 1),
                                                        uno::UNO_QUERY_THROW));
}

HeldPagePtr ImpressDocument::addSlide(const Connection& connection, std::int32_t place,
                                      std::int32_t layout) {
    if (newSlides_.areAt(connection, place, layout)) {
        // LibreOffice counts from 0 and inserts after the page that it is given.
        const auto last = slides_->insertNewByIndex(place + newSlides_.count() - 2);
        layouts_.apply(*held(last), layout);
        newSlides_.add(connection);
        return newSlides_.first();
    }
    const std::int32_t count = slideCount();
    if (place < 1 || place > count + 1)
        throw Failure(FailureNumber::SubscriptOutOfRange, "Slides.Add",
                      fmt::format("A slide can't be added at {} to {} slides", place, count));
    SlideLayouts::requireKnown(layout);
    HeldPagePtr added = insertPage(connection, place);
    layouts_.apply(*added, layout);
    newSlides_.beginWith(connection, added, layout);
    return added;
}

HeldPagePtr ImpressDocument::insertPage(const Connection& connection, std::int32_t place) {
    if (std::exchange(beginsWithoutSlides_, false)) return slide(1);
    // LibreOffice counts from 0 and inserts after the page that it is given.
    const bool atFront = place == 1;
    HeldPagePtr added = held(slides_->insertNewByIndex(atFront ? 0 : place - 2));
    if (atFront) moveToFront(connection, added);
    return added;
}

void ImpressDocument::moveToFront(const Connection& connection, const HeldPagePtr& slide) {
    // Pages are moved by a command on the slide in view alone. A window that is shown takes it in
    // any view, one that is not in the slide sorter only.
    constexpr const char* command = ".uno:MovePageFirst";
    const HeldPagePtr before = slideInView();
    showSlide(slide);
    window_.dispatch(connection, command);
    if (slide->number() != 1) {
        constexpr std::int32_t slideSorter = 7;
        const std::int32_t view = window_.viewType(connection);
        window_.setViewType(connection, slideSorter);
        showSlide(slide);
        window_.dispatch(connection, command);
        window_.setViewType(connection, view);
    }
    showSlide(before);
    if (slide->number() == 1) return;
    removeSlide(slide);
    throw Failure(FailureNumber::ApplicationDefined, "Slides.Add",
                  "LibreOffice did not move the new slide to the front");
}

void ImpressDocument::removeSlide(const HeldPagePtr& slide) {
    // LibreOffice keeps the last slide without a word.
    if (slides_->getCount() == 1)
        throw Failure(FailureNumber::ApplicationDefined, "Slide.Delete",
                      "LibreOffice keeps the last slide of a presentation");
    slides_->remove(slide->page());
    std::erase(held_, slide);
}

HeldPagePtr ImpressDocument::slideInView() {
    if (beginsWithoutSlides_)
        throw Failure(FailureNumber::ApplicationDefined, "View.Slide",
                      "The presentation has no slides");
    const auto page = window_.page();
    if (page.is()) {
        if (auto known = find(page)) return known;
        // The notes of a slide have its number.
        if (!isMasterPage(page)) return slide(property<sal_Int16>(page, "Number"));
    }
    throw Failure(FailureNumber::ApplicationDefined, "View.Slide", "No slide is in view");
}

void ImpressDocument::showSlide(const HeldPagePtr& slide) {
    window_.show(slide->page());
}

void ImpressDocument::selectShape(const HeldShapePtr& shape) {
    const HeldPagePtr slide = shape->page();
    if (slideInView() != slide) showSlide(slide);
    window_.select(shape->shape());
}

std::vector<HeldShapePtr> ImpressDocument::selectedShapes() {
    std::vector<HeldShapePtr> shapes;
    const auto selected = window_.selectedShapes();
    if (selected.empty()) return shapes;
    const HeldPagePtr slide = slideInView();
    for (const auto& shape : selected) shapes.push_back(slide->held(shape));
    return shapes;
}

uno::Reference<css::drawing::XShape> ImpressDocument::createShape(const char* service) {
    return {factory_->createInstance(rtl::OUString::createFromAscii(service)),
            uno::UNO_QUERY_THROW};
}

void ImpressDocument::replaceShape(const HeldShapePtr& shape,
                                   const uno::Reference<css::drawing::XShape>& by) {
    const auto selected = window_.selectedShapes();
    const bool wasSelected = std::any_of(selected.begin(), selected.end(), [&](const auto& each) {
        return each.get() == shape->shape().get();
    });
    shape->page()->page()->remove(shape->shape());
    shape->become(by);
    if (wasSelected) window_.select(by);
}

uno::Reference<css::graphic::XGraphic> ImpressDocument::loadPicture(const Connection& connection,
                                                                    const std::string& path) {
    if (!std::filesystem::is_regular_file(path))
        throw Failure(FailureNumber::FileNotFound, "Shapes.AddPicture",
                      fmt::format("There is no file \"{}\"", path));
    if (!pictures_.is())
        pictures_ = as<css::graphic::XGraphicProvider>(
            connection.create("com.sun.star.graphic.GraphicProvider"));
    auto picture = pictures_->queryGraphic(propertyValues({{"URL", uno::Any(fileUrl(path))}}));
    if (!picture.is())
        throw Failure(FailureNumber::ApplicationDefined, "Shapes.AddPicture",
                      fmt::format("\"{}\" holds no picture that LibreOffice reads", path));
    return picture;
}

bool ImpressDocument::showsSlides() {
    if (!slideShow_.is())
        slideShow_ = as<css::presentation::XPresentation2>(
            as<css::presentation::XPresentationSupplier>(model())->getPresentation());
    return slideShow_->isRunning();
}

void ImpressDocument::endSlideShow() {
    if (showsSlides()) slideShow_->end();
}

void ImpressDocument::freeze() {
    model()->lockControllers();
}

void ImpressDocument::thaw() {
    model()->unlockControllers();
}

HeldPagePtr ImpressDocument::held(const uno::Reference<css::drawing::XDrawPage>& page) {
    if (auto known = find(page)) return known;
    held_.push_back(std::make_shared<HeldPage>(page, ++lastSlideId_));
    return held_.back();
}

HeldPagePtr ImpressDocument::find(const uno::Reference<css::drawing::XDrawPage>& page) const {
    for (const auto& known : held_) {
        if (known->page().get() == page.get()) return known;
    }
    return nullptr;
}

}  // namespace libreoffice::powerpoint
