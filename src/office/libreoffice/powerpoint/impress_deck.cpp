#include "office/libreoffice/powerpoint/impress_deck.h"

#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/drawing/XMasterPagesSupplier.hpp>
#include <com/sun/star/lang/IndexOutOfBoundsException.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/presentation/XPresentationSupplier.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/objects/new_object.h"
#include "office/libreoffice/units.h"
#include "office/model/powerpoint/objects.h"

namespace libreoffice::powerpoint {

namespace {

std::int32_t inProportion(std::int32_t length, std::int32_t before, std::int32_t after) {
    return static_cast<std::int32_t>(std::lround(static_cast<double>(length) * after / before));
}

/// The placeholders of a master page keep their share of the slide.
void resizeShapes(ImpressDeck& deck, const uno::Reference<css::drawing::XDrawPage>& page,
                  const css::awt::Size& before, const css::awt::Size& after) {
    const sal_Int32 count = page->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const uno::Reference<css::drawing::XShape> shape(page->getByIndex(i), uno::UNO_QUERY_THROW);
        deck.hold(shape);
        const css::awt::Point corner = shape->getPosition();
        const css::awt::Size size = shape->getSize();
        shape->setSize({inProportion(size.Width, before.Width, after.Width),
                        inProportion(size.Height, before.Height, after.Height)});
        shape->setPosition({inProportion(corner.X, before.Width, after.Width),
                            inProportion(corner.Y, before.Height, after.Height)});
    }
}

css::awt::Size sizeOf(const uno::Reference<css::beans::XPropertySet>& page) {
    css::awt::Size size;
    page->getPropertyValue("Width") >>= size.Width;
    page->getPropertyValue("Height") >>= size.Height;
    return size;
}

}  // namespace

ImpressDeck::ImpressDeck(Desk& desk, uno::Reference<css::frame::XModel> opened)
    : Document(std::move(opened)),
      desk_(desk),
      pages_(as<css::drawing::XDrawPagesSupplier>(model())->getDrawPages()),
      factory_(as<css::lang::XMultiServiceFactory>(model())),
      file_(as<css::frame::XStorable>(model())),
      latePictures_(desk.connectionPtr(), desk.drawingRoom),
      window_(*this),
      layouts_(model()) {}

void ImpressDeck::beginAnew() {
    // 13 1/3 by 7 1/2 inches.
    const css::awt::Size wideSlide(33867, 19050);
    const auto page = pageAt(1)->properties();
    const css::awt::Size before = sizeOf(page);
    page->setPropertyValue("Width", uno::Any(wideSlide.Width));
    page->setPropertyValue("Height", uno::Any(wideSlide.Height));
    const auto masters = as<css::drawing::XMasterPagesSupplier>(model())->getMasterPages();
    const sal_Int32 count = masters->getCount();
    for (sal_Int32 i = 0; i < count; ++i)
        resizeShapes(
            *this,
            uno::Reference<css::drawing::XDrawPage>(masters->getByIndex(i), uno::UNO_QUERY_THROW),
            before, wideSlide);
    beginsWithoutSlides_ = true;
    as<css::util::XModifiable>(model())->setModified(false);
}

ImpressSlidePtr ImpressDeck::slideOf(const uno::Reference<css::drawing::XDrawPage>& page) {
    if (!page.is()) return nullptr;
    for (const auto& known : slides_) {
        if (known->page().get() == page.get()) return known;
    }
    if (as<css::lang::XServiceInfo>(page)->supportsService("com.sun.star.drawing.MasterPage"))
        return nullptr;
    // The notes of a slide have its number.
    return pageAt(property<sal_Int16>(page, "Number"));
}

void ImpressDeck::removeSlide(ImpressSlide& slide) {
    // For a slide that the user has deleted LibreOffice would remove the first one.
    static_cast<void>(slide.place());
    // LibreOffice keeps the last slide without a word.
    if (pages_->getCount() == 1)
        office::refuse("Slide.Delete", "LibreOffice keeps the last slide of a presentation");
    pages_->remove(slide.page());
    slide.markGone();
    std::erase_if(slides_, [&](const auto& known) { return known.get() == &slide; });
}

uno::Reference<css::drawing::XShape> ImpressDeck::createShape(const char* service) {
    return {factory_->createInstance(rtl::OUString::createFromAscii(service)),
            uno::UNO_QUERY_THROW};
}

bool ImpressDeck::isReadOnly() {
    return file_->isReadonly();
}

const uno::Reference<css::document::XUndoManager>& ImpressDeck::undoSteps() {
    if (!undoSteps_.is() && !desk_.isUndisturbed)
        undoSteps_ = as<css::document::XUndoManagerSupplier>(model())->getUndoManager();
    return undoSteps_;
}

void ImpressDeck::requireWritable(const char* member) {
    if (isReadOnly())
        office::refuse(member, fmt::format("\"{}\" is opened for reading only", name()));
}

office::Size ImpressDeck::slideSize() {
    const css::awt::Size size = sizeOf(pageAt(1)->properties());
    return {pointsOf(size.Width), pointsOf(size.Height)};
}

std::int32_t ImpressDeck::slideCount() {
    return beginsWithoutSlides_ ? 0 : pages_->getCount();
}

model::DeckSlidePtr ImpressDeck::slideAt(std::int32_t place) {
    return beginsWithoutSlides_ ? nullptr : pageAt(place);
}

ImpressSlidePtr ImpressDeck::pageAt(std::int32_t place) {
    try {
        return held(uno::Reference<css::drawing::XDrawPage>(pages_->getByIndex(place - 1),
                                                            uno::UNO_QUERY_THROW));
    } catch (const css::lang::IndexOutOfBoundsException&) {
        return nullptr;
    }
}

ImpressSlidePtr ImpressDeck::held(const uno::Reference<css::drawing::XDrawPage>& page) {
    for (const auto& known : slides_) {
        if (known->page().get() == page.get()) return known;
    }
    slides_.push_back(std::make_shared<ImpressSlide>(page, *this));
    return slides_.back();
}

model::DeckSlidePtr ImpressDeck::addSlide(std::int32_t place, std::int32_t layout) {
    if (wouldComeBeforeNewSlides(place, layout)) {
        // LibreOffice counts from 0 and inserts after the page that it is given.
        const auto last = pages_->insertNewByIndex(place + newSlides_.count - 2);
        dressNewSlide(*held(last));
        ++newSlides_.count;
    } else {
        const std::int32_t count = slideCount();
        if (place < 1 || place > count + 1) return nullptr;
        const SlideFoot foot = count > 0 ? SlideFoot(pageAt(count)->page()) : SlideFoot();
        newSlides_ = {.first = insertPage(place),
                      .count = 1,
                      .layout = layout,
                      .foot = foot,
                      .callsBefore = 0};
        dressNewSlide(*newSlides_.first);
    }
    newSlides_.callsBefore = connection().remoteCalls();
    return newSlides_.first;
}

/// No, if any call at all has been made since the new slides were added, or one of them is held.
bool ImpressDeck::wouldComeBeforeNewSlides(std::int32_t place, std::int32_t layout) const {
    // This record holds the first one twice, and no object of automation does. The others can only
    // be got by a call.
    constexpr long ownHolders = 2;
    return newSlides_.first && newSlides_.layout == layout &&
           connection().remoteCalls() == newSlides_.callsBefore &&
           newSlides_.first.use_count() == ownHolders && newSlides_.first->place() == place;
}

void ImpressDeck::dressNewSlide(ImpressSlide& added) {
    layouts_.apply(added, newSlides_.layout);
    newSlides_.foot.applyTo(added.page());
}

ImpressSlidePtr ImpressDeck::insertPage(std::int32_t place) {
    requireWritable("Slides.Add");
    if (std::exchange(beginsWithoutSlides_, false)) return pageAt(1);
    // LibreOffice counts from 0 and inserts after the page that it is given.
    const bool atFront = place == 1;
    auto added = held(pages_->insertNewByIndex(atFront ? 0 : place - 2));
    if (atFront && !window_.moveToFront(added)) {
        removeSlide(*added);
        office::refuse("Slides.Add", "LibreOffice did not move the new slide to the front");
    }
    return added;
}

bool ImpressDeck::holdsWorkbooks(std::int32_t atLeast) {
    // As a rule fewer objects are stored than that, and no shape has to be asked.
    const auto stored = objects::objectsStoredIn(model());
    if (static_cast<std::int32_t>(stored.size()) < atLeast) return false;
    std::int32_t found = 0;
    const std::int32_t slides = slideCount();
    for (std::int32_t place = 1; place <= slides && found < atLeast; ++place) {
        if (const ImpressSlidePtr slide = pageAt(place)) found += slide->workbooksAmong(stored);
    }
    return found >= atLeast;
}

void ImpressDeck::activate() {
    markActive();
    raise();
}

bool ImpressDeck::showsSlides() {
    if (!slideShow_.is())
        slideShow_ = as<css::presentation::XPresentation2>(
            as<css::presentation::XPresentationSupplier>(model())->getPresentation());
    return slideShow_->isRunning();
}

void ImpressDeck::endSlideShow() {
    if (showsSlides()) slideShow_->end();
}

void ImpressDeck::saveCopy(const std::string& path) {
    latePictures_.settle();
    writeCopy("Presentation.SaveCopyAs", path, {{".pptx", "Impress MS PowerPoint 2007 XML"}});
}

}  // namespace libreoffice::powerpoint
