#include "desktop/form_window.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <utility>

#include "desktop/form_host.h"
#include "desktop/looks.h"
#include "desktop/shadow.h"
#include "desktop/stacking.h"
#include "forms/controls.h"
#include "furniture/titel_bar.h"

namespace desktop {

namespace {

/// The edge of a form that can have no soft one.
constexpr int hardEdgePx = 2;

QPoint screenOrigin() {
    return QGuiApplication::primaryScreen()->geometry().topLeft();
}

/// The widgets within one view that Tab stops at.
std::vector<QWidget*> tabStopsOf(QWidget& view) {
    std::vector<QWidget*> stops;
    if (view.focusPolicy() != Qt::NoFocus) stops.push_back(&view);
    for (QObject* child : view.children()) {
        auto* button = qobject_cast<QAbstractButton*>(child);
        if (button != nullptr) stops.push_back(button);
    }
    return stops;
}

void closeAsTitleBarDoes(forms::Form& form) {
    for (forms::Control* control : form.controls()) {
        auto* bar = dynamic_cast<furniture::TitelBar*>(control);
        if (bar == nullptr) continue;
        bar->pressClose();
        return;
    }
    form.desktop().unload(form);
}

}  // namespace

FormWindow::FormWindow(forms::Form& form, FormHost& host)
    : form_(&form),
      host_(host),
      plate_(new QWidget(this)),
      blends_(form.shadowDepthPx > 0 && canBlendWindows()) {
    Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint;
    if (form.topmost) flags |= Qt::WindowStaysOnTopHint;
    setWindowFlags(flags);
    setAttribute(Qt::WA_TranslucentBackground, blends_);
    drawn_.topmost = form.topmost;
    plate_->setAutoFillBackground(true);
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { focusCame(now); });
}

FormWindow::~FormWindow() {
    disconnect(qApp, nullptr, this, nullptr);
    qApp->removeEventFilter(this);
    // Now, while they can still call their window.
    delete plate_;
}

int FormWindow::margin() const {
    if (drawn_.state == forms::WindowState::Maximised) return 0;
    return blends_ ? drawn_.edge.depthPx : hardEdgePx;
}

void FormWindow::open(forms::ShowMode mode, QWindow* parent) {
    const bool wasVisible = isVisible();
    if (!opened_ && !form_->placesItself) centre();
    sync();
    if (!opened_) {
        setWindowModality(mode == forms::ShowMode::Modal ? Qt::ApplicationModal : Qt::NonModal);
        winId();
        if (parent != nullptr) windowHandle()->setTransientParent(parent);
    }
    opened_ = true;
    if (drawn_.state == forms::WindowState::Minimised) {
        showMinimized();
    } else {
        show();
        // Shown once more, it must not take the keyboard from where the user has gone.
        if (!wasVisible) {
            raise();
            activateWindow();
        }
    }
    syncFocus();
}

void FormWindow::centre() {
    const QSize room = QGuiApplication::primaryScreen()->geometry().size();
    form_->place.left = std::max(0, (twipsOf(room.width()) - form_->place.width) / 2);
    form_->place.top = std::max(0, (twipsOf(room.height()) - form_->place.height) / 2);
}

void FormWindow::letGo() {
    const std::vector<forms::Control*>& controls = form_->controls();
    for (ControlView* view : views_) {
        const bool isThere =
            std::find(controls.begin(), controls.end(), &view->control()) != controls.end();
        view->letGo(isThere);
    }
    form_ = nullptr;
    qApp->removeEventFilter(this);
    hide();
}

ControlView* FormWindow::viewOf(const forms::Control& control) const {
    const auto found = viewOf_.find(&control);
    return found == viewOf_.end() ? nullptr : found->second;
}

void FormWindow::sync() {
    if (form_ == nullptr || syncing_) return;
    const QScopedValueRollback syncing(syncing_, true);
    syncPlace();
    syncViews();
    syncOrder();
    syncTabOrder();
    syncState();
    syncFocus();
}

void FormWindow::syncPlace() {
    const Shadow edge{form_->shadowDepthPx, form_->shadowOpacity, colourOf(form_->shadowColour)};
    const bool edgeDiffers = !(std::exchange(drawn_.edge, edge) == edge);
    if (edgeDiffers) update();
    if (drawn_.ground != form_->backColour || !opened_) {
        drawn_.ground = form_->backColour;
        QPalette colours = plate_->palette();
        colours.setColor(QPalette::Window, colourOf(drawn_.ground));
        plate_->setPalette(colours);
        update();
    }
    if (drawn_.caption != form_->caption || !opened_) {
        drawn_.caption = form_->caption;
        setWindowTitle(textOf(drawn_.caption.empty() ? form_->name() : drawn_.caption));
    }
    if (drawn_.place == form_->place && !edgeDiffers) return;
    drawn_.place = form_->place;
    if (drawn_.state == forms::WindowState::Maximised) return;
    const QRect place = pixelsOf(drawn_.place);
    setFixedSize(place.size() + QSize(2 * margin(), 2 * margin()));
    move(screenOrigin() + place.topLeft() - QPoint(margin(), margin()));
}

QWidget& FormWindow::parentFor(const forms::Control& control) {
    if (control.container() == nullptr) return *plate_;
    ControlView* frame = viewOf(*control.container());
    return frame == nullptr ? *plate_ : frame->widget();
}

void FormWindow::syncViews() {
    const std::vector<forms::Control*>& controls = form_->controls();
    for (ControlView* view : std::exchange(views_, {})) {
        if (std::find(controls.begin(), controls.end(), &view->control()) != controls.end()) {
            views_.push_back(view);
            continue;
        }
        viewOf_.erase(&view->control());
        view->letGo(false);
        view->widget().hide();
        gone_.push_back(view);
    }
    for (forms::Control* control : controls) {
        if (viewOf_.contains(control)) continue;
        ControlView* view = makeControlView(*control, parentFor(*control), host_);
        viewOf_.emplace(control, view);
        views_.push_back(view);
    }
    for (ControlView* view : views_) view->sync();
}

void FormWindow::bury() {
    for (ControlView* view : std::exchange(gone_, {})) delete &view->widget();
}

void FormWindow::syncOrder() {
    const std::vector<ControlView*> views = fromBackToFront(views_);
    std::vector<const forms::Control*> order;
    order.reserve(views.size());
    for (const ControlView* view : views) order.push_back(&view->control());
    if (order == order_) return;
    order_ = std::move(order);
    for (ControlView* view : views) view->widget().raise();
}

void FormWindow::syncTabOrder() {
    std::vector<const forms::Control*> order = tabOrderOf(*form_);
    if (order == tabOrder_) return;
    tabOrder_ = std::move(order);
    QWidget* before = nullptr;
    for (const forms::Control* control : tabOrder_) {
        for (QWidget* stop : tabStopsOf(viewOf(*control)->widget())) {
            if (before != nullptr) QWidget::setTabOrder(before, stop);
            before = stop;
        }
    }
}

void FormWindow::syncState() {
    if (const bool topmost = host_.isTopmost(); drawn_.topmost != topmost) {
        drawn_.topmost = topmost;
        // Through the window's handle: the widget's own way would take the window away and show it
        // again.
        if (windowHandle() != nullptr) {
            windowHandle()->setFlag(Qt::WindowStaysOnTopHint, drawn_.topmost);
            if (drawn_.topmost && opened_) raiseBelowModal();
        }
    }
    if (drawn_.state == form_->windowState) return;
    drawn_.state = form_->windowState;
    switch (drawn_.state) {
        case forms::WindowState::Minimised:
            if (opened_) showMinimized();
            break;
        case forms::WindowState::Maximised:
            setMinimumSize(0, 0);
            setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            if (opened_) showMaximized();
            break;
        case forms::WindowState::Normal:
            if (opened_) showNormal();
            drawn_.place = {};
            break;
    }
}

void FormWindow::raiseBelowModal() {
    raise();
    // The form that has the input must not end up beneath one that takes none, and where no window
    // manager gives the keyboard back from a form that has closed, nobody else does.
    QWindow* modal = QGuiApplication::modalWindow();
    if (modal == nullptr || modal == windowHandle()) {
        activateWindow();
        return;
    }
    modal->raise();
    modal->requestActivate();
}

void FormWindow::syncFocus() {
    if (!opened_ || (form_->focus == focus_ && focus_ != nullptr)) return;
    if (form_->focus == nullptr) {
        const auto first =
            std::find_if(tabOrder_.begin(), tabOrder_.end(), [this](const auto* control) {
                const QWidget& shown = viewOf(*control)->widget();
                return shown.isVisibleTo(this) && shown.isEnabled() &&
                       (shown.focusPolicy() & Qt::TabFocus) != 0;
            });
        if (first == tabOrder_.end()) return;
        focus_ = *first;
    } else {
        focus_ = form_->focus;
    }
    if (ControlView* view = viewOf(*focus_); view != nullptr) {
        form_->focus = &view->control();
        view->widget().setFocus(Qt::OtherFocusReason);
    }
}

void FormWindow::focusCame(const QWidget* now) {
    if (form_ == nullptr || now == nullptr || !isAncestorOf(now)) return;
    const auto came = std::find_if(views_.begin(), views_.end(), [now](ControlView* view) {
        const QWidget& shown = view->widget();
        return &shown == now || (shown.isAncestorOf(now) &&
                                 view->control().controlClass() != forms::ControlClass::Frame);
    });
    if (came == views_.end()) return;
    focus_ = &(*came)->control();
    form_->focus = &(*came)->control();
}

void FormWindow::paintEvent(QPaintEvent*) {
    if (margin() == 0) return;
    QPainter painter(this);
    if (!blends_) {
        // Nothing else would tell the form from another one of the same colour beneath it.
        const QColor ground = colourOf(drawn_.ground);
        painter.fillRect(rect(), blend(ground, textColourOn(ground), 0.35));
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(painter, plate_->geometry(), drawn_.edge);
}

void FormWindow::resizeEvent(QResizeEvent*) {
    plate_->setGeometry(rect().adjusted(margin(), margin(), -margin(), -margin()));
    if (form_ == nullptr || drawn_.state != forms::WindowState::Maximised) return;
    host_.deliver([this] {
        form_->place.width = twipsOf(plate_->width());
        form_->place.height = twipsOf(plate_->height());
    });
}

void FormWindow::moveEvent(QMoveEvent*) {
    if (form_ == nullptr || syncing_ || !opened_ || isMinimized()) return;
    const QPoint at = pos() + QPoint(margin(), margin()) - screenOrigin();
    // A pixel is several twips: a place that the form has set and that is shown already stays.
    if (pixelsOf(form_->place).topLeft() == at) return;
    form_->place.left = drawn_.place.left = twipsOf(at.x());
    form_->place.top = drawn_.place.top = twipsOf(at.y());
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || form_ == nullptr || syncing_) return;
    const auto state = isMinimized()   ? forms::WindowState::Minimised
                       : isMaximized() ? forms::WindowState::Maximised
                                       : forms::WindowState::Normal;
    form_->windowState = drawn_.state = state;
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The form decides; its window goes by being unloaded.
    event->ignore();
    if (form_ != nullptr && !form_->takesInput) return;
    host_.deliver([this] { form_->desktop().unload(*form_); });
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    // A key that is held down would walk through one form after another.
    const bool isHeld = event->isAutoRepeat();
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!isHeld) pressByKey(true);
            return;
        case Qt::Key_Escape:
            if (!isHeld) pressByKey(false);
            return;
        case Qt::Key_F4:
            // Most window managers take this key themselves; it has to work without one too.
            if (event->modifiers().testFlag(Qt::AltModifier)) close();
            return;
        default:
            QWidget::keyPressEvent(event);
    }
}

void FormWindow::pressByKey(bool isDefault) {
    host_.deliver([this, isDefault] {
        const auto usable = [](const forms::Control* control) {
            return control != nullptr && control->visible && control->enabled;
        };
        if (auto* focused = dynamic_cast<forms::CommandButton*>(form_->focus);
            isDefault && usable(focused)) {
            focused->press();
            return;
        }
        for (forms::Control* control : form_->controls()) {
            auto* button = dynamic_cast<forms::CommandButton*>(control);
            if (!usable(button) || !(isDefault ? button->isDefault : button->isCancel)) continue;
            button->press();
            return;
        }
        if (!isDefault && form_->escapeCloses) closeAsTitleBarDoes(*form_);
    });
}

bool FormWindow::isInputOfMine(const QObject* receiver, const QEvent& event) const {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride: {
            const auto* widget = qobject_cast<const QWidget*>(receiver);
            return widget != nullptr && widget->window() == this;
        }
        default:
            return false;
    }
}

bool FormWindow::eventFilter(QObject* receiver, QEvent* event) {
    if (form_ != nullptr && !form_->takesInput && isInputOfMine(receiver, *event)) return true;
    const bool keyboard = event->type() == QEvent::KeyPress;
    if ((keyboard || event->type() == QEvent::MouseButtonPress) &&
        std::exchange(keyboardInUse_, keyboard) != keyboard) {
        if (QWidget* focused = focusWidget(); focused != nullptr) focused->update();
    }
    return false;
}

}  // namespace desktop
