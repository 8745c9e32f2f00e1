#pragma once

#include <com/sun/star/drawing/XDrawPages.hpp>
#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>
#include <com/sun/star/graphic/XGraphicProvider.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/presentation/XPresentation2.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/document.h"
#include "office/libreoffice/powerpoint/held_page.h"
#include "office/libreoffice/powerpoint/new_slides.h"
#include "office/libreoffice/powerpoint/presentation_window.h"
#include "office/libreoffice/powerpoint/slide_layouts.h"

namespace libreoffice::powerpoint {

/// An open presentation, and what automation remembers about it: the slides and shapes that have
/// been met.
class ImpressDocument : public Document {
public:
    explicit ImpressDocument(uno::Reference<css::frame::XModel> opened);

    /// Makes a presentation that was just created have no slides, as PowerPoint's begin.
    /// LibreOffice can't have none, so the one it begins with counts from the first slide on that
    /// is added, and is that slide.
    void beginWithoutSlides() { beginsWithoutSlides_ = true; }

    /// All slides have the size of the first one.
    [[nodiscard]] css::awt::Size slideSize();
    /// The placeholders of the master pages keep their share of the slide.
    void setSlideSize(const css::awt::Size& size);

    [[nodiscard]] std::int32_t slideCount();
    /// The slide at a place from 1. `office::Failure` 9 outside.
    [[nodiscard]] HeldPagePtr slide(std::int32_t place);
    /// A new slide that gets this place. `office::Failure` 9 unless the place is 1 to the count
    /// + 1.
    HeldPagePtr addSlide(const Connection& connection, std::int32_t place, std::int32_t layout);
    void removeSlide(const HeldPagePtr& slide);

    /// The slide in view; in the notes view the one whose notes are. `office::Failure` 1004 in a
    /// view of master pages.
    [[nodiscard]] HeldPagePtr slideInView();
    void showSlide(const HeldPagePtr& slide);
    void selectShape(const HeldShapePtr& shape);
    [[nodiscard]] std::vector<HeldShapePtr> selectedShapes();

    [[nodiscard]] PresentationWindow& window() { return window_; }
    [[nodiscard]] SlideLayouts& layouts() { return layouts_; }

    /// A shape of a service ("com.sun.star.drawing.TextShape"), not on a slide yet.
    [[nodiscard]] uno::Reference<css::drawing::XShape> createShape(const char* service);
    /// A shape of LibreOffice takes the place of another one, in the window's selection too.
    void replaceShape(const HeldShapePtr& shape, const uno::Reference<css::drawing::XShape>& by);
    /// The picture in a file. `office::Failure` 53 if there is no such file, 1004 if it holds no
    /// picture.
    [[nodiscard]] uno::Reference<css::graphic::XGraphic> loadPicture(const Connection& connection,
                                                                     const std::string& path);

    /// Whether a slide show of the presentation is running.
    [[nodiscard]] bool showsSlides();
    void endSlideShow();

    /// Stops and resumes drawing; counted, so the two must be called in pairs.
    void freeze();
    void thaw();
    /// Gives the presentation's window the foreground. False if it has none.
    bool raise() { return window_.raise(); }

private:
    [[nodiscard]] HeldPagePtr pageAt(std::int32_t place);
    [[nodiscard]] HeldPagePtr held(const uno::Reference<css::drawing::XDrawPage>& page);
    [[nodiscard]] HeldPagePtr find(const uno::Reference<css::drawing::XDrawPage>& page) const;
    [[nodiscard]] HeldPagePtr insertPage(const Connection& connection, std::int32_t place);
    void moveToFront(const Connection& connection, const HeldPagePtr& slide);

    uno::Reference<css::drawing::XDrawPages> slides_;
    uno::Reference<css::lang::XMultiServiceFactory> factory_;
    uno::Reference<css::graphic::XGraphicProvider> pictures_;
    uno::Reference<css::presentation::XPresentation2> slideShow_;
    PresentationWindow window_;
    SlideLayouts layouts_;
    std::vector<HeldPagePtr> held_;
    NewSlides newSlides_;
    std::int32_t lastSlideId_ = 255;
    bool beginsWithoutSlides_ = false;
};

using ImpressDocumentPtr = std::shared_ptr<ImpressDocument>;

}  // namespace libreoffice::powerpoint
