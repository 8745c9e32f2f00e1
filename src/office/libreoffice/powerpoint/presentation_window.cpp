#include "office/libreoffice/powerpoint/presentation_window.h"

#include <com/sun/star/awt/XToolkitExperimental.hpp>
#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/beans/UnknownPropertyException.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/drawing/framework/ResourceId.hpp>
#include <com/sun/star/drawing/framework/XControllerManager.hpp>
#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>
#include <thread>
#include <utility>

#include "office/failure.h"

namespace libreoffice::powerpoint {

namespace {

namespace framework = css::drawing::framework;

constexpr const char* viewFolder = "private:resource/view/";

struct ViewKind {
    std::int32_t viewType;
    std::string_view resource;
    bool ofMasterPage;
    const char* command;
};

constexpr std::array<ViewKind, 7> viewKinds = {{
    {9, "ImpressView", false, ".uno:NormalMultiPaneGUI"},
    {7, "SlideSorter", false, ".uno:DiaMode"},
    {5, "NotesView", false, ".uno:NotesMode"},
    {6, "OutlineView", false, ".uno:OutlineMode"},
    {2, "ImpressView", true, ".uno:SlideMasterPage"},
    {3, "NotesView", true, ".uno:NotesMasterPage"},
    {4, "HandoutView", true, ".uno:HandoutMode"},
}};

constexpr std::int32_t normalView = 9;
constexpr std::int32_t slideView = 1;

/// The name of the view in the window's main pane; empty while there is none.
std::string mainView(const Connection& connection,
                     const uno::Reference<css::frame::XController>& controller) {
    const auto manager = tryAs<framework::XControllerManager>(controller);
    if (!manager.is()) return {};
    const auto pane =
        framework::ResourceId::create(connection.context(), "private:resource/pane/CenterPane");
    const auto views =
        manager->getConfigurationController()->getCurrentConfiguration()->getResources(
            pane, rtl::OUString::createFromAscii(viewFolder), framework::AnchorBindingMode_DIRECT);
    if (!views.hasElements()) return {};
    return fromUno(views[0]->getResourceURL()).substr(std::string_view(viewFolder).size());
}

}  // namespace

PresentationWindow::PresentationWindow(uno::Reference<css::frame::XModel> model)
    : model_(std::move(model)) {}

const uno::Reference<css::frame::XController>& PresentationWindow::controller() {
    auto current = model_->getCurrentController();
    if (!current.is())
        throw office::Failure(office::FailureNumber::ApplicationDefined, "DocumentWindow",
                              "The presentation has no window");
    if (current.get() != controller_.get()) {
        controller_ = std::move(current);
        view_ = as<css::drawing::XDrawView>(controller_);
        selection_ = as<css::view::XSelectionSupplier>(controller_);
    }
    return controller_;
}

uno::Reference<css::drawing::XDrawPage> PresentationWindow::page() {
    static_cast<void>(controller());
    return view_->getCurrentPage();
}

void PresentationWindow::show(const uno::Reference<css::drawing::XDrawPage>& page) {
    static_cast<void>(controller());
    view_->setCurrentPage(page);
}

void PresentationWindow::select(const uno::Reference<css::drawing::XShape>& shape) {
    static_cast<void>(controller());
    selection_->select(uno::Any(shape));
}

void PresentationWindow::unselect() {
    static_cast<void>(controller());
    selection_->select(uno::Any());
}

std::vector<uno::Reference<css::drawing::XShape>> PresentationWindow::selectedShapes() {
    static_cast<void>(controller());
    std::vector<uno::Reference<css::drawing::XShape>> shapes;
    uno::Reference<css::container::XIndexAccess> selected;
    selection_->getSelection() >>= selected;
    if (!selected.is()) return shapes;
    const sal_Int32 count = selected->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        // In the slide sorter the selection holds slides.
        const uno::Reference<css::drawing::XShape> shape(selected->getByIndex(i), uno::UNO_QUERY);
        if (shape.is()) shapes.push_back(shape);
    }
    return shapes;
}

bool PresentationWindow::showsMasterPage() {
    try {
        return property<bool>(controller_, "IsMasterPageMode");
    } catch (const css::beans::UnknownPropertyException&) {
        return false;  // the sorter and the outline have no such mode
    }
}

std::int32_t PresentationWindow::viewType(const Connection& connection) {
    const std::string resource = mainView(connection, controller());
    for (const ViewKind& kind : viewKinds) {
        if (kind.resource == resource && kind.ofMasterPage == showsMasterPage())
            return kind.viewType;
    }
    return normalView;
}

void PresentationWindow::setViewType(const Connection& connection, std::int32_t viewType_) {
    const std::int32_t wanted = viewType_ == slideView ? normalView : viewType_;
    const auto* kind =
        std::find_if(viewKinds.begin(), viewKinds.end(),
                     [&](const ViewKind& candidate) { return candidate.viewType == wanted; });
    if (kind == viewKinds.end())
        throw office::Failure(office::FailureNumber::InvalidProcedureCall,
                              "DocumentWindow.ViewType",
                              fmt::format("There is no view {}", wanted));
    if (viewType(connection) == wanted) return;
    dispatch(connection, kind->command);
    // With a window on a screen the view follows a moment after the command.
    using std::chrono::steady_clock;
    const auto deadline = steady_clock::now() + std::chrono::seconds(2);
    while (viewType(connection) != wanted) {
        if (steady_clock::now() > deadline)
            throw office::Failure(office::FailureNumber::ApplicationDefined,
                                  "DocumentWindow.ViewType", "The window keeps its view");
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    // A fresh outline goes back to the slide of the view before it a moment later, and would undo
    // what is shown next.
    as<css::awt::XToolkitExperimental>(connection.create("com.sun.star.awt.Toolkit"))
        ->processEventsToIdle();
}

void PresentationWindow::dispatch(const Connection& connection, const char* command) {
    const auto frame = as<css::frame::XDispatchProvider>(controller()->getFrame());
    css::frame::DispatchHelper::create(connection.context())
        ->executeDispatch(frame, rtl::OUString::createFromAscii(command), rtl::OUString(), 0, {});
}

bool PresentationWindow::raise() {
    const auto frame = controller()->getFrame();
    const auto window = frame->getContainerWindow();
    const auto visible = tryAs<css::awt::XWindow2>(window);
    if (!visible.is() || !visible->isVisible()) return false;
    frame->activate();
    if (const auto top = tryAs<css::awt::XTopWindow>(window); top.is()) top->toFront();
    window->setFocus();
    return true;
}

}  // namespace libreoffice::powerpoint
