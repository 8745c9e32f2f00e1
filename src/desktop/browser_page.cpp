#include "desktop/browser_page.h"

#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QTimer>
#include <QtWebEngineCore/QWebEngineScript>
#include <QtWebEngineCore/QWebEngineSettings>

#include <chrono>
#include <memory>

#include "desktop/looks.h"

namespace desktop {

BrowserPage::BrowserPage(QWebEngineProfile& profile, QObject* parent, const QColor& ground)
    : QWebEnginePage(&profile, parent) {
    // Before anything is loaded, or the strip flashes white.
    setBackgroundColor(ground);
    QWebEngineSettings& page = *settings();
    // The pages carry no script. The program's own questions run in a world of their own, which
    // this leaves alone.
    page.setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    page.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
    page.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    page.setAttribute(QWebEngineSettings::LocalStorageEnabled, false);
    page.setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    page.setAttribute(QWebEngineSettings::PluginsEnabled, false);
    page.setAttribute(QWebEngineSettings::PdfViewerEnabled, false);
    page.setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, false);
    setUrlRequestInterceptor(&guard_);
}

void BrowserPage::show(const QUrl& url) {
    asked_ = url;
    load(url);
}

void BrowserPage::Guard::interceptRequest(QWebEngineUrlRequestInfo& request) {
    const auto type = request.resourceType();
    if (type == QWebEngineUrlRequestInfo::ResourceTypeMainFrame) return;
    const QUrl url = request.requestUrl();
    const bool isShown = type == QWebEngineUrlRequestInfo::ResourceTypeImage ||
                         type == QWebEngineUrlRequestInfo::ResourceTypeStylesheet;
    const bool isPartOfThePage = url.scheme() == QLatin1String("data");
    const bool isInFolder =
        !folder.isEmpty() && url.isLocalFile() &&
        QDir::cleanPath(url.toLocalFile()).startsWith(QDir::cleanPath(folder) + QLatin1Char('/'));
    request.block(!isShown || !(isPartOfThePage || isInFolder));
}

void BrowserPage::allow(const QString& folder) {
    guard_.folder = folder;
    // All or none to the engine: the guard tells one file from the other.
    settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, !folder.isEmpty());
}

bool BrowserPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool) {
    if (type == NavigationTypeLinkClicked) {
        if (onLink) onLink(url.toString(QUrl::FullyEncoded));
        return false;
    }
    // Not a file that was dropped on the page, nor where it came from before.
    return url == asked_ && type != NavigationTypeBackForward;
}

namespace {

constexpr std::chrono::seconds patience{1};

}  // namespace

QVariant askPage(QWebEnginePage& page, const QString& script, ViewHost& host) {
    // The answer may come after the patience has ended, so its place must outlive this call.
    struct Answer {
        QVariant value;
        bool given = false;
        QEventLoop* waiting = nullptr;
    };
    const auto answer = std::make_shared<Answer>();
    page.runJavaScript(script, QWebEngineScript::ApplicationWorld, [answer](const QVariant& value) {
        answer->value = value;
        answer->given = true;
        if (answer->waiting != nullptr) answer->waiting->quit();
    });
    if (!answer->given) {
        QEventLoop loop;
        answer->waiting = &loop;
        QTimer::singleShot(patience, &loop, &QEventLoop::quit);
        host.holdEvents(true);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        host.holdEvents(false);
        answer->waiting = nullptr;
    }
    return answer->value;
}

void tellPage(QWebEnginePage& page, const QString& script) {
    page.runJavaScript(script, QWebEngineScript::ApplicationWorld);
}

QString scriptText(std::string_view text) {
    const QByteArray array = QJsonDocument(QJsonArray{textOf(text)}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

}  // namespace desktop
