#pragma once

#include <QtCore/QUrl>
#include <QtCore/QVariant>
#include <QtWebEngineCore/QWebEnginePage>
#include <QtWebEngineCore/QWebEngineUrlRequestInfo>
#include <QtWebEngineCore/QWebEngineUrlRequestInterceptor>

#include <functional>
#include <string_view>

#include "desktop/control_view.h"

namespace desktop {

/// A page that goes nowhere by itself: it loads what the program asks for, and what a click asks
/// for is handed on. Nothing of it may show a dialog or open a window.
class BrowserPage final : public QWebEnginePage {
public:
    BrowserPage(QWebEngineProfile& profile, QObject* parent, const QColor& ground);

    void show(const QUrl& url);
    /// Pictures and style sheets of this folder may be loaded by the pages that are shown from now
    /// on; none if it is empty.
    void allow(const QString& folder);
    /// Gets the address as the page wrote it. Nobody registers the scheme of the program's links:
    /// the engine would then take their path for one of a host, in lower case.
    std::function<void(const QString& url)> onLink;

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
    void javaScriptAlert(const QUrl&, const QString&) override {}
    bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
    bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override {
        return false;
    }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                  const QString&) override {}

private:
    /// Stands between the pages and everything that they ask for.
    struct Guard final : QWebEngineUrlRequestInterceptor {
        void interceptRequest(QWebEngineUrlRequestInfo& request) override;
        QString folder;
    };

    QUrl asked_;
    Guard guard_;
};

/// Asks the page and waits for its answer, a second at the most; an invalid value if none comes.
/// Meanwhile the user's input is left waiting, and no event reaches a form.
[[nodiscard]] QVariant askPage(QWebEnginePage& page, const QString& script, ViewHost& host);

/// Runs a script in the page without waiting.
void tellPage(QWebEnginePage& page, const QString& script);

/// A text as a literal of the script language, with its quotes.
[[nodiscard]] QString scriptText(std::string_view text);

}  // namespace desktop
