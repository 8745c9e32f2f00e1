#include "desktop/browser_page.h"

#include <QtWebEngineCore/QWebEngineSettings>

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
}

void BrowserPage::show(const QUrl& url) {
    asked_ = url;
    load(url);
}

bool BrowserPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool) {
    if (type == NavigationTypeLinkClicked) {
        if (onLink) onLink(url.toString(QUrl::FullyEncoded));
        return false;
    }
    // Not a file that was dropped on the page, nor where it came from before.
    return url == asked_ && type != NavigationTypeBackForward;
}

}  // namespace desktop
