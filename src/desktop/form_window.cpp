#include "desktop/form_window.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <utility>

#include "desktop/loaded_form.h"
#include "desktop/looks.h"
#include "forms/controls.h"
#include "furniture/title_bar.h"

namespace desktop {

namespace {

/// The edge of a form that can have no soft one.
constexpr int hardEdgePx = 2;

QPoint screenOrigin() {
    return QGuiApplication::primaryScreen()->geometry().topLeft();
}

/// The lower right corner, by which a form is enlarged. It sizes the window itself: the toolkit's
/// own needs a window manager.
class Corner final : public QWidget {
public:
    Corner(QWidget& parent, const QColor& ground) : QWidget(&parent), ground_(ground) {
        setObjectName(QStringLiteral("corner"));
        setFixedSize(13, 13);
        setCursor(Qt::SizeFDiagCursor);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        held_ = window()->size() - sizeTo(event->globalPosition().toPoint());
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        window()->resize(sizeTo(event->globalPosition().toPoint()) + held_);
    }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(blend(ground_, textColourOn(ground_), 0.5), 1.2));
        for (const int length : {4, 8}) {
            painter.drawLine(QPointF(width() - 2 - length, height() - 2),
                             QPointF(width() - 2, height() - 2 - length));
        }
    }

private:
    [[nodiscard]] QSize sizeTo(const QPoint& global) const {
        const QPoint reach = global - window()->pos();
        return {reach.x(), reach.y()};
    }

    QColor ground_;
    QSize held_;  ///< what the window reaches beyond the pointer
};

void closeAsTitleBarDoes(forms::Form& form) {
    for (forms::Control* control : form.controls()) {
        auto* bar = dynamic_cast<furniture::TitleBar*>(control);
        if (bar == nullptr) continue;
        bar->pressClose();
        return;
    }
    form.desktop().unload(form);
}

}  // namespace

FormWindow::FormWindow(forms::Form& form, LoadedForm& host)
    : form_(&form),
      host_(host),
      plate_(new QWidget(this)),
      views_(form, *plate_, host),
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
    const forms::Screen screen = form_->desktop().screen();
    form_->place.left = screen.middleAcross(form_->place.width);
    form_->place.top = screen.middleDown(form_->place.height);
}

void FormWindow::detach() {
    views_.detach();
    form_ = nullptr;
    qApp->removeEventFilter(this);
    hide();
}

void FormWindow::sync() {
    if (form_ == nullptr || syncing_) return;
    const QScopedValueRollback syncing(syncing_, true);
    syncState();
    syncLooks();
    syncPlace();
    views_.sync();
    syncFocus();
}

void FormWindow::syncLooks() {
    const Shadow edge{form_->shadowDepthPx, form_->shadowOpacity, colourOf(form_->shadowColour)};
    if (!(std::exchange(drawn_.edge, edge) == edge)) {
        drawn_.place = {};
        update();
    }
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
}

void FormWindow::syncPlace() {
    if (drawn_.place == form_->place) return;
    drawn_.place = form_->place;
    const QRect place = pixelsOf(drawn_.place);
    const QSize edges(2 * margin(), 2 * margin());
    if (form_->resizable) {
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        const int lowest = pixelsOf(std::min(form_->naturalHeight(), form_->place.height));
        setMinimumSize(QSize(pixelsOf(form_->naturalWidth()), lowest) + edges);
        if (corner_ == nullptr) corner_ = new Corner(*plate_, colourOf(drawn_.ground));
        corner_->setVisible(drawn_.state == forms::WindowState::Normal);
        resize(place.size() + edges);
    } else {
        setFixedSize(place.size() + edges);
    }
    move(screenOrigin() + place.topLeft() - QPoint(margin(), margin()));
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
    const auto before = std::exchange(drawn_.state, form_->windowState);
    if (drawn_.state == forms::WindowState::Minimised) {
        if (opened_) showMinimized();
        return;
    }
    if (before == forms::WindowState::Minimised) {
        if (opened_) showNormal();
    }
    switchSize();
}

void FormWindow::switchSize() {
    // The window manager has no part in this: without one the form is enlarged all the same.
    if (drawn_.state == forms::WindowState::Maximised) {
        if (normalPlace_.width == 0) normalPlace_ = form_->place;
        const QRect room = screen()->availableGeometry();
        form_->place = {twipsOf(room.left() - screenOrigin().x()),
                        twipsOf(room.top() - screenOrigin().y()), twipsOf(room.width()),
                        twipsOf(room.height())};
    } else if (normalPlace_.width > 0) {
        form_->place = std::exchange(normalPlace_, {});
    }
    drawn_.place = {};
    form_->Form_Resize();
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
    ControlView* view =
        form_->focus == nullptr ? views_.firstStop(*this) : views_.of(*form_->focus);
    if (view == nullptr) return;
    focus_ = form_->focus = &view->control();
    view->widget().setFocus(Qt::OtherFocusReason);
}

void FormWindow::focusCame(const QWidget* now) {
    if (form_ == nullptr || now == nullptr || !isAncestorOf(now)) return;
    if (ControlView* view = views_.holding(*now); view != nullptr) {
        focus_ = form_->focus = &view->control();
    }
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
    if (corner_ != nullptr) {
        corner_->move(plate_->rect().bottomRight() - corner_->rect().bottomRight());
        corner_->raise();
    }
    // By the corner, or by the window system.
    if (form_ == nullptr || !form_->resizable || syncing_ || !opened_) return;
    host_.deliver([this] {
        form_->place.width = drawn_.place.width = twipsOf(plate_->width());
        form_->place.height = drawn_.place.height = twipsOf(plate_->height());
        form_->Form_Resize();
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
    if (form_ == nullptr) return;
    if (event->type() == QEvent::ActivationChange && opened_) {
        host_.deliver([this, entered = isActiveWindow()] {
            if (form_ != nullptr) entered ? form_->Form_Entered() : form_->Form_Left();
        });
        return;
    }
    if (event->type() != QEvent::WindowStateChange || syncing_) return;
    if (isMinimized()) {
        form_->windowState = drawn_.state = forms::WindowState::Minimised;
    } else if (drawn_.state == forms::WindowState::Minimised) {
        const bool isLarge = normalPlace_.width > 0;
        form_->windowState = drawn_.state =
            isLarge ? forms::WindowState::Maximised : forms::WindowState::Normal;
    }
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
        case Qt::Key_F1:
            if (!isHeld) askForHelp();
            return;
        case Qt::Key_F4:
            // Most window managers take this key themselves; it has to work without one too.
            if (event->modifiers().testFlag(Qt::AltModifier)) close();
            return;
        default:
            QWidget::keyPressEvent(event);
    }
}

void FormWindow::askForHelp() {
    host_.deliver([this] {
        const auto& help = form_->desktop().onHelp;
        if (help) help(*form_);
    });
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
        case QEvent::ShortcutOverride:
        // These come whatever became of the press, and the menu of a text box pastes into it.
        case QEvent::ContextMenu:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
        case QEvent::InputMethod:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd: {
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
