#pragma once

#include <com/sun/star/document/XUndoManager.hpp>
#include <com/sun/star/drawing/XDrawPages.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/presentation/XPresentation2.hpp>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "office/libreoffice/desk.h"
#include "office/libreoffice/document.h"
#include "office/libreoffice/powerpoint/impress_slide.h"
#include "office/libreoffice/powerpoint/impress_window.h"
#include "office/libreoffice/powerpoint/late_pictures.h"
#include "office/libreoffice/powerpoint/slide_foot.h"
#include "office/libreoffice/powerpoint/slide_layouts.h"
#include "office/model/powerpoint/deck.h"
#include "office/value.h"

namespace libreoffice::powerpoint {

/// An open presentation, and what automation remembers about it: the slides and shapes that have
/// been met.
class ImpressDeck : public Document, public model::Deck {
public:
    ImpressDeck(Desk& desk, uno::Reference<css::frame::XModel> opened);

    [[nodiscard]] Desk& desk() const { return desk_; }
    [[nodiscard]] Connection& connection() const { return desk_.connection(); }
    [[nodiscard]] ImpressWindow& impressWindow() { return window_; }
    [[nodiscard]] SlideLayouts& layouts() { return layouts_; }

    /// Makes a presentation that was just created be as PowerPoint's begin: wide, without slides.
    void beginAnew();
    [[nodiscard]] bool hasNoSlides() const { return beginsWithoutSlides_; }
    /// The slide of a page, or of a page of notes; null for a master page.
    [[nodiscard]] ImpressSlidePtr slideOf(const uno::Reference<css::drawing::XDrawPage>& page);
    /// `office::Failure` 1004 in a presentation opened for reading only, which LibreOffice lets
    /// automation change, though nobody can keep what comes of it.
    void requireWritable(const char* member);
    /// `office::Failure` 1004 for the last one.
    void removeSlide(ImpressSlide& slide);
    /// A shape of a service ("com.sun.star.drawing.TextShape"), not on a slide yet.
    [[nodiscard]] uno::Reference<css::drawing::XShape> createShape(const char* service);
    /// Keeps a shape until the presentation is closed: LibreOffice crashes on one that is closed
    /// just when a shape of it is let go.
    void hold(uno::Reference<css::drawing::XShape> shape) { shapes_.push_back(std::move(shape)); }
    /// None where no user takes back anything.
    [[nodiscard]] const uno::Reference<css::document::XUndoManager>& undoSteps();
    [[nodiscard]] LatePictures& latePictures() { return latePictures_; }
    /// Whether so many workbooks are embedded in it. Objects that came with a .pptx count, whatever
    /// they hold: LibreOffice doesn't know before one of them is opened.
    [[nodiscard]] bool holdsWorkbooks(std::int32_t atLeast);

    [[nodiscard]] bool isGone() const override { return isClosed(); }
    std::string name() override { return Document::name(); }
    std::string fullName() override { return Document::fullName(); }
    bool isReadOnly() override;
    /// All slides have the size of the first one.
    office::Size slideSize() override;
    std::int32_t slideCount() override;
    model::DeckSlidePtr slideAt(std::int32_t place) override;
    model::DeckSlidePtr addSlide(std::int32_t place, std::int32_t layout) override;
    model::DeckWindow& window() override { return window_; }
    office::CopiedPtr copied() override { return desk_.clipboard().copied; }
    void activate() override;
    bool showsSlides() override;
    void endSlideShow() override;
    void saveCopy(const std::string& path) override;
    void close() override { Document::close(); }

private:
    /// New slides that were added one in front of the other and that nobody has touched since.
    ///
    /// One of them is like the next. So another one may come after them and the first of them be
    /// called the new one: nobody can tell the difference, and LibreOffice, in which a slide comes
    /// in front only by being moved there, takes ten times as long for that.
    struct NewSlides {
        ImpressSlidePtr first;
        std::int32_t count = 0;
        std::int32_t layout = 0;
        /// That of the slide which was the last before them.
        SlideFoot foot;
        std::uint64_t callsBefore = 0;
    };

    [[nodiscard]] bool wouldComeBeforeNewSlides(std::int32_t place, std::int32_t layout) const;
    [[nodiscard]] ImpressSlidePtr pageAt(std::int32_t place);
    [[nodiscard]] ImpressSlidePtr held(const uno::Reference<css::drawing::XDrawPage>& page);
    [[nodiscard]] ImpressSlidePtr insertPage(std::int32_t place);
    void dressNewSlide(ImpressSlide& added);

    Desk& desk_;
    uno::Reference<css::drawing::XDrawPages> pages_;
    uno::Reference<css::lang::XMultiServiceFactory> factory_;
    uno::Reference<css::frame::XStorable> file_;
    uno::Reference<css::presentation::XPresentation2> slideShow_;
    uno::Reference<css::document::XUndoManager> undoSteps_;
    LatePictures latePictures_;
    ImpressWindow window_;
    SlideLayouts layouts_;
    std::vector<ImpressSlidePtr> slides_;
    std::vector<uno::Reference<css::drawing::XShape>> shapes_;
    NewSlides newSlides_;
    /// LibreOffice can't have a presentation without slides: the one that it begins with counts
    /// from the first slide on that is added, and is that slide.
    bool beginsWithoutSlides_ = false;
};

/// LibreOffice's presentations under the name of PowerPoint.
[[nodiscard]] office::Object applicationObject(const DeskPtr& desk);

}  // namespace libreoffice::powerpoint
