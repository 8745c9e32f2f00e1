#pragma once

#include <QtCore/QUrl>
#include <QtWebEngineCore/QWebEnginePage>

#include <functional>

namespace desktop {

/// A page that goes nowhere by itself: it loads what the program asks for, and what a click asks
/// for is handed on. Nothing of it may show a dialog or open a window.
class BrowserPage final : public QWebEnginePage {
public:
    BrowserPage(QWebEngineProfile& profile, QObject* parent, const QColor& ground);

    void show(const QUrl& url);
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
    QUrl asked_;
};

}  // namespace desktop
