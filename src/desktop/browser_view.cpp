#include "desktop/browser_view.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtQuickWidgets/QQuickWidget>
#include <QtWebEngineWidgets/QWebEngineView>
#include <QtWidgets/QApplication>

#include <chrono>

#include "desktop/browser_page.h"
#include "desktop/looks.h"
#include "desktop/page_roles.h"
#include "forms/form.h"

namespace desktop {

namespace {

/// Starting the engine keeps the program busy for some tenths of a second: the form comes first.
constexpr std::chrono::milliseconds formComesFirst{40};
/// At the most; an engine that says nothing of it has ended it by then.
constexpr std::chrono::milliseconds refusalTakes{300};
/// Now and then the engine drops a load that follows a refused link closely.
constexpr int triesAfterAFailure = 2;
constexpr std::chrono::milliseconds betweenTries{50};

}  // namespace

BrowserView::BrowserView(forms::WebBrowser& browser, QWidget& parent, ViewHost& host)
    : QWidget(&parent),
      ControlView(browser, *this, host),
      browser_(browser) {
    setFocusPolicy(Qt::StrongFocus);
    browser_.view = this;
    if (!browser_.url().empty()) navigate(browser_.url());
}

void BrowserView::detach(bool controlIsThere) {
    if (controlIsThere && browser_.view == this) browser_.view = nullptr;
    // What is on its way arrives before the window goes, and the control may be gone by then.
    if (page_ != nullptr) disconnect(page_, nullptr, this, nullptr);
    wanted_.clear();
    loading_.clear();
    revivalsLeft_ = 0;
}

void BrowserView::navigate(std::string_view url) {
    complete_ = false;
    const bool alreadyAsked = !wanted_.isEmpty();
    wanted_ = textOf(url);
    if (alreadyAsked || refusing_) return;
    const auto delay = view_ == nullptr ? formComesFirst : std::chrono::milliseconds{0};
    QTimer::singleShot(delay, this, [this] { loadWanted(); });
}

void BrowserView::loadWanted() {
    if (wanted_.isEmpty()) return;
    if (view_ == nullptr) startEngine();
    loading_ = last_ = std::exchange(wanted_, QString());
    triesLeft_ = triesAfterAFailure;
    page_->allow(textOf(browser_.resourceFolder));
    page_->show(QUrl(loading_));
}

void BrowserView::startEngine() {
    view_ = new QWebEngineView(this);
    page_ = new BrowserPage(host().browserProfile(), view_, look().ground);
    page_->onLink = [this](const QString& url) { follow(url); };
    view_->setPage(page_);
    view_->setContextMenuPolicy(Qt::NoContextMenu);
    view_->setAcceptDrops(false);
    view_->setGeometry(rect());
    view_->setAccessibleName(accessibleName());
    connect(qApp, &QApplication::focusChanged, this, &BrowserView::focusMoved);
    connect(page_, &QWebEnginePage::loadFinished, this,
            [this](bool succeeded) { loadEnded(succeeded); });
    connect(page_, &QWebEnginePage::renderProcessTerminated, this, [this] {
        complete_ = false;
        view_->hide();
        QTimer::singleShot(betweenTries, this, [this] {
            if (!wanted_.isEmpty() || !loading_.isEmpty() || revivalsLeft_ == 0) return;
            --revivalsLeft_;
            navigate(textOf(last_));
        });
    });
    setFocusProxy(view_);
    view_->hide();
}

void BrowserView::focusMoved(QWidget* from, const QWidget* to) {
    const bool comesIn = to != nullptr && isAncestorOf(to) && from != nullptr &&
                         !isAncestorOf(from) && from->window() == window();
    if (comesIn) focusBefore_ = QApplication::mouseButtons() == Qt::NoButton ? nullptr : from;
}

void BrowserView::lookChanged() {
    if (view_ != nullptr) view_->setAccessibleName(accessibleName());
}

void BrowserView::showPage() {
    // What the engine paints on is white until its first picture has come.
    for (QQuickWidget* canvas : view_->findChildren<QQuickWidget*>()) {
        canvas->setClearColor(look().ground);
    }
    // The engine makes itself a new one now and then.
    if (QWidget* canvas = view_->focusProxy(); canvas != nullptr) canvas->installEventFilter(this);
    view_->show();
    // The keyboard came to the strip ahead of the engine.
    if (browser_.form().focus == &browser_) view_->setFocus(Qt::OtherFocusReason);
}

bool BrowserView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const auto& key = dynamic_cast<const QKeyEvent&>(*event);
    if (!key.isAutoRepeat()) addToKey(key.key(), *watched);
    // The engine keeps these keys for itself, also where no page makes anything of them.
    const bool isTheForms =
        key.key() == Qt::Key_Escape || key.key() == Qt::Key_F4 || key.key() == Qt::Key_F1;
    if (!isTheForms) return false;
    QCoreApplication::sendEvent(this, event);
    return true;
}

void BrowserView::addToKey(int key, QObject& canvas) {
    const bool isSpace = key == Qt::Key_Space;
    if (!isSpace && key != Qt::Key_Return && key != Qt::Key_Enter) return;
    // The form's own links are drawn as check boxes and buttons; on others Space scrolls. Enter in
    // a field is kept by the engine; where nothing takes it, it comes back to the form by itself.
    const QString script = isSpace ? QStringLiteral("document.activeElement?.protocol==='murvane:'")
                                   : QStringLiteral("document.activeElement?.tagName==='INPUT'");
    QObject* receiver = isSpace ? &canvas : this;
    page_->runJavaScript(
        script, QWebEngineScript::ApplicationWorld, [at = QPointer(receiver)](const QVariant& is) {
            if (!is.toBool() || at == nullptr) return;
            // Posted: what the form does may ask the page, which from within its answer it can't.
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QCoreApplication::postEvent(
                    at, new QKeyEvent(type, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r")));
            }
        });
}

void BrowserView::loadEnded(bool succeeded) {
    // A link that was refused ends as a load that failed, and the page is as complete as before.
    if (!succeeded) {
        if (refusing_) {
            refusalEnded();
        } else {
            tryAgain();
        }
        return;
    }
    loading_.clear();
    if (!wanted_.isEmpty()) return;
    complete_ = true;
    tellRoles(*page_);
    showPage();
    if (const QString link = std::exchange(followed_, QString()); !link.isEmpty()) {
        tellPage(*page_, QStringLiteral("(function(u){var a=Array.from(document.links).find("
                                        "function(e){return e.getAttribute('href')===u;});"
                                        "if(a)a.focus();})(%1)")
                             .arg(scriptText(textOf(link))));
    }
    tell([this] {
        if (browser_.onDocumentComplete) browser_.onDocumentComplete();
    });
}

void BrowserView::refusalEnded() {
    if (!std::exchange(refusing_, false)) return;
    // Not from within the engine's own announcement.
    QTimer::singleShot(0, this, [this] { loadWanted(); });
}

void BrowserView::tryAgain() {
    if (loading_.isEmpty() || triesLeft_ == 0) return;
    --triesLeft_;
    QTimer::singleShot(betweenTries, this, [this] {
        if (!loading_.isEmpty() && wanted_.isEmpty()) page_->show(QUrl(loading_));
    });
}

void BrowserView::follow(const QString& url) {
    // The end of the refused link would take a page along that is asked for before it.
    refusing_ = true;
    if (focusBefore_ != nullptr) {
        std::exchange(focusBefore_, nullptr)->setFocus(Qt::OtherFocusReason);
    } else {
        followed_ = url;
    }
    QTimer::singleShot(refusalTakes, this, [this] { refusalEnded(); });
    // The engine is in the middle of its own decision and must not be given a page from within it;
    // a form that is asked may well do that.
    host().deliverLater([self = QPointer(this), url] {
        if (self == nullptr) return;
        const auto& ask = self->browser_.onBeforeNavigate;
        const bool cancelled = ask && ask(textOf(url));
        if (!cancelled && self != nullptr) self->navigate(textOf(url));
    });
}

std::optional<std::string> BrowserView::fieldValue(std::string_view id) {
    if (!complete_) return std::nullopt;
    const QVariant value =
        askPage(*page_,
                QStringLiteral("(function(){var e=document.getElementById(%1);"
                               "return e&&typeof e.value==='string'?e.value:null;})()")
                    .arg(scriptText(id)),
                host());
    if (value.typeId() != QMetaType::QString) return std::nullopt;
    return textOf(value.toString());
}

int BrowserView::contentHeight(std::string_view id) {
    if (!complete_) return 0;
    return askPage(
               *page_,
               QStringLiteral("(function(){var e=document.getElementById(%1)||document.body;"
                              "return e?(e.scrollHeight<1?e.offsetHeight:e.scrollHeight):0;})()")
                   .arg(scriptText(id)),
               host())
        .toInt();
}

void BrowserView::setStyle(std::string_view property, std::string_view value) {
    setStyleOf(QStringLiteral("document.body,document.documentElement"), property, value);
}

void BrowserView::setBodyStyle(std::string_view property, std::string_view value) {
    setStyleOf(QStringLiteral("document.body"), property, value);
}

void BrowserView::setDivStyle(std::string_view className, std::string_view property,
                              std::string_view value) {
    setStyleOf(QStringLiteral("...Array.from(document.getElementsByTagName('div')).filter("
                              "function(e){return e.className===%1;})")
                   .arg(scriptText(className)),
               property, value);
}

void BrowserView::setStyleOf(const QString& elements, std::string_view property,
                             std::string_view value) {
    if (!complete_) return;
    tellPage(*page_, QStringLiteral("(function(p,v){[%1].forEach(function(e){"
                                    "if(!e)return;if(p in e.style)e.style[p]=v;"
                                    "else e.style.setProperty(p.toLowerCase(),v);});})(%2,%3)")
                         .arg(elements, scriptText(property), scriptText(value)));
}

void BrowserView::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), look().ground);
}

void BrowserView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (view_ != nullptr) view_->setGeometry(rect());
}

}  // namespace desktop
