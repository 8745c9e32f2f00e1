#pragma once

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include "desktop/control_view.h"
#include "forms/web_browser.h"

class QWebEngineView;

namespace desktop {

class BrowserPage;

/// The strip of a form that shows a page. The engine behind it is started by the first page, after
/// the form has appeared.
class BrowserView final : public QWidget, public ControlView, public forms::BrowserView {
public:
    BrowserView(forms::WebBrowser& browser, QWidget& parent, ViewHost& host);

    void detach(bool controlIsThere) override;

    void navigate(std::string_view url) override;
    [[nodiscard]] bool isComplete() override { return complete_; }
    [[nodiscard]] std::optional<std::string> fieldValue(std::string_view id) override;
    [[nodiscard]] int contentHeight(std::string_view id) override;
    void setStyle(std::string_view property, std::string_view value) override;
    void setBodyStyle(std::string_view property, std::string_view value) override;
    void setDivStyle(std::string_view className, std::string_view property,
                     std::string_view value) override;

    /// Null until the engine has been started. For tests.
    [[nodiscard]] QWebEngineView* engineView() const { return view_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool syncOwn() override { return false; }
    void lookChanged() override;
    void startEngine();
    void focusMoved(QWidget* from, const QWidget* to);
    void loadWanted();
    void showPage();
    void loadEnded(bool succeeded);
    void follow(const QString& url);
    /// What the engine makes nothing of: Space on a link of the form follows it, and Enter in a
    /// field is the form's.
    void addToKey(int key, QObject& canvas);
    void refusalEnded();
    void tryAgain();
    /// `elements` as a script lists them.
    void setStyleOf(const QString& elements, std::string_view property, std::string_view value);

    forms::WebBrowser& browser_;
    QWebEngineView* view_ = nullptr;  ///< as the page, the toolkit's
    BrowserPage* page_ = nullptr;
    QString wanted_;
    QString loading_;
    int triesLeft_ = 0;
    /// What was shown last, and how often it may be shown once more after the engine has died.
    QString last_;
    int revivalsLeft_ = 2;
    /// Where the keyboard was before a click took it into the page; a link that is clicked gives it
    /// back.
    QPointer<QWidget> focusBefore_;
    /// The link that was followed by a key: the page that answers it gets the keyboard there.
    QString followed_;
    /// A link has been refused, and the engine has not done with it.
    bool refusing_ = false;
    bool complete_ = false;
};

}  // namespace desktop
