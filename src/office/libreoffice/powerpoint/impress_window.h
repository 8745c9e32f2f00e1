#pragma once

#include <com/sun/star/drawing/XDrawPage.hpp>
#include <com/sun/star/drawing/XDrawView.hpp>
#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XDispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <chrono>
#include <cstdint>
#include <vector>

#include "office/libreoffice/uno_values.h"
#include "office/model/powerpoint/deck_slide.h"

namespace libreoffice::powerpoint {

namespace model = office::model::powerpoint;

class ImpressDeck;
class ImpressSlide;

/// The window of a presentation: the slide in view, what is selected, the kind of view. One that
/// was opened without a window has all of this too, unseen.
class ImpressWindow final : public model::DeckWindow {
public:
    explicit ImpressWindow(ImpressDeck& deck) : deck_(deck) {}

    std::int32_t viewType() override;
    /// 1 (slide) is the normal view. A run ends with this call: then, it waits for the pictures
    /// that are still drawn. `office::Failure` 1004 also if one of them could not be.
    void setViewType(std::int32_t number) override;
    model::DeckSlidePtr slideInView() override;
    /// A window that has just come to a slide rests there for a moment: LibreOffice paints each
    /// slide that is shown, pictures and all, and nothing else goes on meanwhile. Whatever else is
    /// asked of the window, but for letting the selection go, brings it to its slide first, unless
    /// somebody has gone to another one.
    void show(const model::DeckSlidePtr& slide) override;
    void select(const model::DeckShapePtr& shape) override;
    void unselect() override;

    void select(const uno::Reference<css::drawing::XShape>& shape);
    /// The shapes selected, also while the text of one is being edited there.
    [[nodiscard]] std::vector<uno::Reference<css::drawing::XShape>> selection();
    /// Moves a slide to the front; false if LibreOffice did not.
    [[nodiscard]] bool moveToFront(const model::DeckSlidePtr& slide);
    /// Pastes the kind of data that LibreOffice gives this number onto a slide. The slide in view
    /// and the selection stay.
    void pasteOnto(ImpressSlide& slide, sal_uInt32 format);

private:
    /// The commands of the window's menus (".uno:DiaMode").
    struct Commands {
        uno::Reference<css::frame::XDispatchHelper> dispatcher;
        uno::Reference<css::frame::XDispatchProvider> frame;

        void run(const char* command,
                 const uno::Sequence<css::beans::PropertyValue>& arguments = {}) const;
    };

    [[nodiscard]] const uno::Reference<css::frame::XController>& controller();
    /// With the slide in view that was asked for last.
    [[nodiscard]] const uno::Reference<css::frame::XController>& settledController();
    void showNow(const model::DeckSlidePtr& slide);
    void changeView(std::int32_t number);
    [[nodiscard]] bool showsMasterPage();
    [[nodiscard]] Commands commands();

    ImpressDeck& deck_;
    uno::Reference<css::frame::XController> controller_;
    /// The controller's further interfaces, kept with it since asking for one is a remote call.
    uno::Reference<css::drawing::XDrawView> view_;
    uno::Reference<css::view::XSelectionSupplier> selection_;
    /// The slide that the window is still to come to, and the one where it rests till then.
    model::DeckSlidePtr awaited_;
    model::DeckSlidePtr shown_;
    std::chrono::steady_clock::time_point shownAt_;
};

}  // namespace libreoffice::powerpoint
