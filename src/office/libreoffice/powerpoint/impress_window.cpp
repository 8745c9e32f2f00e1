#include "office/libreoffice/powerpoint/impress_window.h"

#include <com/sun/star/awt/XToolkitExperimental.hpp>
#include <com/sun/star/beans/UnknownPropertyException.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/drawing/framework/ResourceId.hpp>
#include <com/sun/star/drawing/framework/XControllerManager.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>
#include <thread>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/at_end.h"
#include "office/libreoffice/main_thread.h"
#include "office/libreoffice/powerpoint/impress_deck.h"

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
    {3, "NotesView", false, ".uno:NotesMode"},
    {6, "OutlineView", false, ".uno:OutlineMode"},
    {2, "ImpressView", true, ".uno:SlideMasterPage"},
    {5, "NotesView", true, ".uno:NotesMasterPage"},
    {4, "HandoutView", true, ".uno:HandoutMode"},
}};

constexpr std::int32_t normalView = 9;
constexpr std::int32_t slideView = 1;
constexpr std::int32_t slideSorter = 7;

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

const uno::Reference<css::frame::XController>& ImpressWindow::controller() {
    auto current = deck_.controller();
    if (!current.is()) office::refuse("DocumentWindow", "The presentation has no window");
    if (current.get() != controller_.get()) {
        controller_ = std::move(current);
        view_ = as<css::drawing::XDrawView>(controller_);
        selection_ = as<css::view::XSelectionSupplier>(controller_);
    }
    return controller_;
}

const uno::Reference<css::frame::XController>& ImpressWindow::settledController() {
    const auto slide = std::exchange(awaited_, nullptr);
    static_cast<void>(controller());
    // Who has gone to another slide meanwhile stays there.
    if (slide && !slide->isGone() && deck_.slideOf(view_->getCurrentPage()) == shown_)
        showNow(slide);
    return controller_;
}

model::DeckSlidePtr ImpressWindow::slideInView() {
    if (deck_.hasNoSlides()) return nullptr;
    static_cast<void>(settledController());
    return deck_.slideOf(view_->getCurrentPage());
}

void ImpressWindow::show(const model::DeckSlidePtr& slide) {
    constexpr auto rest = std::chrono::milliseconds(250);
    if (std::chrono::steady_clock::now() - shownAt_ >= rest) return showNow(slide);
    awaited_ = slide;
}

void ImpressWindow::showNow(const model::DeckSlidePtr& slide) {
    awaited_.reset();
    static_cast<void>(controller());
    view_->setCurrentPage(std::static_pointer_cast<ImpressSlide>(slide)->page());
    shown_ = slide;
    shownAt_ = std::chrono::steady_clock::now();
}

void ImpressWindow::select(const model::DeckShapePtr& shape) {
    const auto& wanted = dynamic_cast<ImpressShape&>(*shape);
    const auto slide = wanted.slide().shared_from_this();
    if (slideInView() != slide) showNow(slide);
    select(wanted.reference());
}

void ImpressWindow::select(const uno::Reference<css::drawing::XShape>& shape) {
    static_cast<void>(settledController());
    selection_->select(uno::Any(shape));
}

void ImpressWindow::unselect() {
    static_cast<void>(controller());
    selection_->select(uno::Any());
}

std::vector<uno::Reference<css::drawing::XShape>> ImpressWindow::selection() {
    static_cast<void>(settledController());
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

bool ImpressWindow::showsMasterPage() {
    try {
        return property<bool>(controller_, "IsMasterPageMode");
    } catch (const css::beans::UnknownPropertyException&) {
        return false;  // the sorter and the outline have no such mode
    }
}

std::int32_t ImpressWindow::viewType() {
    const std::string resource = mainView(deck_.connection(), settledController());
    for (const ViewKind& kind : viewKinds) {
        if (kind.resource == resource && kind.ofMasterPage == showsMasterPage())
            return kind.viewType;
    }
    return normalView;
}

void ImpressWindow::setViewType(std::int32_t number) {
    changeView(number);
    deck_.latePictures().settle();
}

void ImpressWindow::changeView(std::int32_t number) {
    const std::int32_t wanted = number == slideView ? normalView : number;
    const auto* kind =
        std::find_if(viewKinds.begin(), viewKinds.end(),
                     [&](const ViewKind& candidate) { return candidate.viewType == wanted; });
    if (kind == viewKinds.end())
        office::refuseCall("DocumentWindow.ViewType", fmt::format("There is no view {}", wanted));
    if (viewType() == wanted) return;
    commands().run(kind->command);
    // With a window on a screen the view follows a moment after the command.
    using std::chrono::steady_clock;
    const auto deadline = steady_clock::now() + std::chrono::seconds(2);
    while (viewType() != wanted) {
        if (steady_clock::now() > deadline)
            office::refuse("DocumentWindow.ViewType", "The window keeps its view");
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    // A fresh outline goes back to the slide of the view before it a moment later, and would undo
    // what is shown next.
    as<css::awt::XToolkitExperimental>(deck_.connection().create("com.sun.star.awt.Toolkit"))
        ->processEventsToIdle();
}

bool ImpressWindow::moveToFront(const model::DeckSlidePtr& slide) {
    // Pages are moved by a command on the slide in view alone. A window that is shown takes it in
    // any view, one that is not in the slide sorter only.
    constexpr const char* command = ".uno:MovePageFirst";
    const auto before = slideInView();
    showNow(slide);
    commands().run(command);
    if (slide->place() != 1) {
        const std::int32_t view = viewType();
        changeView(slideSorter);
        showNow(slide);
        commands().run(command);
        changeView(view);
    }
    if (before) showNow(before);
    return slide->place() == 1;
}

void ImpressWindow::pasteOnto(ImpressSlide& slide, sal_uInt32 format) {
    // Other views paste elsewhere, or nothing.
    const std::int32_t view = viewType();
    const auto viewBack = atEnd([&] {
        if (view != normalView) changeView(view);
    });
    if (view != normalView) changeView(normalView);
    static_cast<void>(settledController());
    // What is pasted is selected, and the main thread would put up its toolbars and panels, only to
    // take them down again: a sixth of the time of a table. While it waits it doesn't.
    struct Before {
        uno::Reference<css::drawing::XDrawPage> page;
        uno::Any selected;
    };
    onMainThread(deck_.connection(),
                 [commands = commands(), view = view_, selection = selection_, page = slide.page(),
                  format, kept = std::make_shared<Before>()] {
                     kept->page = view->getCurrentPage();
                     kept->selected = selection->getSelection();
                     const auto& [before, selected] = *kept;
                     const auto pageBack = atEnd([&] {
                         selection->select(uno::Any());
                         if (before != page) view->setCurrentPage(before);
                         if (selected.hasValue()) selection->select(selected);
                     });
                     if (before != page) view->setCurrentPage(page);
                     // What is selected would take the contents in.
                     selection->select(uno::Any());
                     commands.run(".uno:ClipboardFormatItems",
                                  propertyValues({{"SelectedFormat", uno::Any(format)}}));
                 });
}

ImpressWindow::Commands ImpressWindow::commands() {
    return {as<css::frame::XDispatchHelper>(
                deck_.connection().create("com.sun.star.frame.DispatchHelper")),
            as<css::frame::XDispatchProvider>(controller()->getFrame())};
}

void ImpressWindow::Commands::run(const char* command,
                                  const uno::Sequence<css::beans::PropertyValue>& arguments) const {
    dispatcher->executeDispatch(frame, rtl::OUString::createFromAscii(command), rtl::OUString(), 0,
                                arguments);
}

}  // namespace libreoffice::powerpoint
