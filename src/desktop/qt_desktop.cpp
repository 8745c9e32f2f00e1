#include "desktop/qt_desktop.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QIcon>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWebEngineCore/QWebEngineProfile>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

#include <algorithm>

#include "desktop/loaded_form.h"
#include "desktop/looks.h"
#include "furniture/palette.h"

namespace desktop {

namespace {

/// Escape and the cross leave a question without an answer; Qt would press "No" for them.
class PlainBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Cancel)) {
            reject();
        } else {
            QMessageBox::keyPressEvent(event);
        }
    }
    void closeEvent(QCloseEvent*) override { reject(); }
};

}  // namespace

QtDesktop::QtDesktop() = default;

QtDesktop::~QtDesktop() {
    for (const auto& host : forms_) host->detach();
}

LoadedForm* QtDesktop::loadedOf(const forms::Form& form) const {
    const auto found = std::find_if(forms_.begin(), forms_.end(),
                                    [&form](const auto& host) { return host->isOf(form); });
    return found == forms_.end() ? nullptr : found->get();
}

LoadedForm& QtDesktop::loadedFor(forms::Form& form) {
    if (LoadedForm* known = loadedOf(form); known != nullptr) return *known;
    forms_.push_back(std::make_unique<LoadedForm>(form, *this));
    return *forms_.back();
}

bool QtDesktop::hasTopmostBelow(const LoadedForm& host) const {
    const auto self = std::find_if(forms_.begin(), forms_.end(),
                                   [&host](const auto& each) { return each.get() == &host; });
    return std::any_of(forms_.begin(), self, [](const auto& each) {
        return each->window() != nullptr && each->isTopmost();
    });
}

void QtDesktop::openWindow(forms::Form& form, forms::ShowMode mode) {
    QWindow* parent = nullptr;
    for (const auto& host : forms_) {
        if (host->isOf(form) || host->window() == nullptr || !host->window()->isVisible()) continue;
        parent = host->window()->windowHandle();
        // Above a modal form only another modal one takes input.
        if (host->window()->isModal()) mode = forms::ShowMode::Modal;
    }
    if (mode == forms::ShowMode::Modeless) parent = nullptr;
    loadedFor(form).open(mode, parent);
}

void QtDesktop::runModal(forms::Form& form) {
    while (isLoaded(form)) waitForEvents();
}

void QtDesktop::closeWindow(forms::Form& form) {
    const auto found = std::find_if(forms_.begin(), forms_.end(),
                                    [&form](const auto& host) { return host->isOf(form); });
    if (found == forms_.end()) return;
    (*found)->detach();
    // Its widgets may be in the middle of the event that closes it.
    closed_.push_back(std::move(*found));
    forms_.erase(found);
}

void QtDesktop::deleteClosed() {
    const auto firstFree = std::stable_partition(closed_.begin(), closed_.end(),
                                                 [](const auto& host) { return host->isBusy(); });
    std::vector<std::unique_ptr<LoadedForm>> dead(std::make_move_iterator(firstFree),
                                                  std::make_move_iterator(closed_.end()));
    closed_.erase(firstFree, closed_.end());
    for (const auto& host : dead) {
        std::erase_if(postponed_, [&host](const auto& each) { return each.first == host.get(); });
    }
}

void QtDesktop::sync() {
    for (forms::Form* form : loadedForms()) loadedFor(*form).sync();
}

void QtDesktop::run(const std::function<void()>& event) {
    // With a failure on its way to whoever let events run, nothing else happens before it arrives.
    if (failure_ != nullptr) return;
    try {
        event();
    } catch (const std::exception&) {
        failure_ = std::current_exception();
        return;
    }
    sync();
}

void QtDesktop::closeForms() {
    QMetaObject::invokeMethod(
        &context_,
        [this] {
            closes_ = true;
            // A box runs its own loop, and the forms wait for its answer.
            if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                box->reject();
        },
        Qt::QueuedConnection);
}

void QtDesktop::closeThoseThatTakeInput() {
    if (!closes_) return;
    // Events may run while a form is unloaded, and what it then shows is closed as well.
    const std::vector<forms::Form*> open(loadedForms().rbegin(), loadedForms().rend());
    for (forms::Form* form : open) {
        const auto& now = loadedForms();
        if (std::find(now.begin(), now.end(), form) != now.end() && form->takesInput) unload(*form);
    }
}

void QtDesktop::runLater(LoadedForm& host, std::function<void()> event) {
    postponed_.emplace_back(&host, std::move(event));
    if (!holdsEvents()) QTimer::singleShot(0, &context_, [this] { runPostponed(); });
}

void QtDesktop::runPostponed() {
    if (holdsEvents()) return;
    for (auto& [host, event] : std::exchange(postponed_, {})) host->deliver(std::move(event));
}

void QtDesktop::holdEvents(bool hold) {
    holds_ += hold ? 1 : -1;
    if (holds_ == 0 && !postponed_.empty()) {
        QTimer::singleShot(0, &context_, [this] { runPostponed(); });
    }
}

QWebEngineProfile& QtDesktop::browserProfile() {
    if (profile_ == nullptr) profile_ = std::make_unique<QWebEngineProfile>();
    return *profile_;
}

void QtDesktop::pump(bool wait) {
    sync();
    QCoreApplication::processEvents(wait ? QEventLoop::WaitForMoreEvents : QEventLoop::AllEvents);
    sync();
    closeThoseThatTakeInput();
    deleteClosed();
    throwFailure();
}

void QtDesktop::letEventsRun() {
    pump(false);
}

void QtDesktop::waitForEvents() {
    pump(true);
}

void QtDesktop::throwFailure() {
    if (failure_ != nullptr) std::rethrow_exception(std::exchange(failure_, nullptr));
}

forms::Screen QtDesktop::screen() const {
    // That of the form opened last; the first one comes up where the pointer is.
    const QScreen* first = QGuiApplication::primaryScreen();
    const QScreen* used = QGuiApplication::screenAt(QCursor::pos());
    for (const auto& host : forms_) {
        if (host->window() != nullptr && host->window()->isVisible())
            used = host->window()->screen();
    }
    const QRect all = (used != nullptr ? used : first)->geometry();
    const QPoint corner = all.topLeft() - first->geometry().topLeft();
    return {twipsOf(all.width()), twipsOf(all.height()), twipsOf(corner.x()), twipsOf(corner.y())};
}

std::optional<bool> QtDesktop::showBox(std::string_view text, std::string_view title, bool asks) {
    if (answer_) return answer_(text, title);
    if (closes_) return std::nullopt;
    PlainBox box(QMessageBox::NoIcon, textOf(title), textOf(text),
                 asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    QPalette colours = box.palette();
    colours.setColor(QPalette::Window, colourOf(furniture::palette::ThemeGround));
    colours.setColor(QPalette::WindowText, colourOf(furniture::palette::ThemeText));
    colours.setColor(QPalette::Text, colourOf(furniture::palette::ThemeText));
    colours.setColor(QPalette::Button, colourOf(furniture::palette::ThemeAccentButton));
    colours.setColor(QPalette::ButtonText,
                     textColourOn(colourOf(furniture::palette::ThemeAccentButton)));
    box.setPalette(colours);
    box.setFont(fontOf({.sizePt = 9.75}));
    constexpr int iconSide = 40;
    // A mere word of success has no title.
    if (!asks && !title.empty()) {
        box.setIconPixmap(QIcon(QStringLiteral(":/icons/warning.svg"))
                              .pixmap(QSize(iconSide, iconSide), box.devicePixelRatioF()));
    }
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.setTextFormat(Qt::PlainText);
    const int pressed = box.exec();
    if (pressed == QMessageBox::Yes) return true;
    if (pressed == QMessageBox::No) return false;
    return std::nullopt;
}

void QtDesktop::messageBox(std::string_view text, std::string_view title) {
    showBox(text, title, false);
}

std::optional<bool> QtDesktop::ask(std::string_view text, std::string_view title) {
    return showBox(text, title, true);
}

std::optional<std::string> QtDesktop::chooseFolder(std::string_view title, std::string_view start) {
    if (closes_) return std::nullopt;
    QFileDialog dialog(nullptr, textOf(title), textOf(start));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    // Places of the network have no path that files could be written to.
    dialog.setSupportedSchemes({QStringLiteral("file")});
    // The forms are topmost, and it would come up behind them.
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    std::string folder = textOf(dialog.selectedFiles().constFirst());
    if (!folder.starts_with('/')) return std::nullopt;
    return folder;
}

void QtDesktop::showWorking(bool works) {
    if (works) {
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

QWidget* QtDesktop::plateOf(const forms::Form& form) const {
    const LoadedForm* host = loadedOf(form);
    return host == nullptr || host->window() == nullptr ? nullptr : &host->window()->plate();
}

QWidget* QtDesktop::widgetOf(const forms::Control& control) const {
    const LoadedForm* host = loadedOf(control.form());
    if (host == nullptr || host->window() == nullptr) return nullptr;
    ControlView* view = host->window()->views().of(control);
    return view == nullptr ? nullptr : &view->widget();
}

}  // namespace desktop
