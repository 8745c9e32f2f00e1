#include "desktop/browser_query.h"

#include <QtCore/QEventLoop>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QTimer>
#include <QtWebEngineCore/QWebEngineScript>

#include <chrono>
#include <memory>

#include "desktop/looks.h"

namespace desktop {

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
