#pragma once

#include <com/sun/star/drawing/XDrawPage.hpp>
#include <com/sun/star/drawing/XDrawView.hpp>
#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <cstdint>
#include <vector>

#include "office/libreoffice/connection.h"

namespace libreoffice::powerpoint {

/// The window of a presentation: the slide in view, what is selected, the kind of view.
///
/// A presentation that was opened without a window has all of this too, unseen.
class PresentationWindow {
public:
    explicit PresentationWindow(uno::Reference<css::frame::XModel> model);

    /// The page in view: of a slide, or in other views its notes or a master page.
    [[nodiscard]] uno::Reference<css::drawing::XDrawPage> page();
    void show(const uno::Reference<css::drawing::XDrawPage>& page);

    void select(const uno::Reference<css::drawing::XShape>& shape);
    void unselect();
    /// The shapes selected, also while the text of one is being edited there.
    [[nodiscard]] std::vector<uno::Reference<css::drawing::XShape>> selectedShapes();

    /// PowerPoint's number of the view: 9 normal, 7 sorter, 5 notes page, 6 outline, 2 slide
    /// master, 3 notes master, 4 handout master.
    [[nodiscard]] std::int32_t viewType(const Connection& connection);
    /// `office::Failure` 1004 if the window does not change to it, 5 for another number. 1 (slide)
    /// is the normal view.
    void setViewType(const Connection& connection, std::int32_t viewType);

    /// Runs a command of the menus (".uno:DiaMode") here.
    void dispatch(const Connection& connection, const char* command);

    /// Gives the window the foreground. False if it has no window that is shown.
    bool raise();

private:
    [[nodiscard]] const uno::Reference<css::frame::XController>& controller();
    [[nodiscard]] bool showsMasterPage();

    uno::Reference<css::frame::XModel> model_;
    uno::Reference<css::frame::XController> controller_;
    /// The controller's further interfaces, kept with it since asking for one is a remote call.
    uno::Reference<css::drawing::XDrawView> view_;
    uno::Reference<css::view::XSelectionSupplier> selection_;
};

}  // namespace libreoffice::powerpoint
