#include "hand.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtGui/QKeySequence>
#include <QtQuickWidgets/QQuickWidget>
#include <QtTest/QTest>
#include <QtWebEngineCore/QWebEngineScript>
#include <QtWebEngineWidgets/QWebEngineView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>

#include <chrono>
#include <exception>
#include <future>
#include <memory>
#include <string>
#include <thread>

#include "desktop/browser_view.h"
#include "desktop/list_view.h"
#include "sight.h"

namespace by_hand {

using nlohmann::json;

namespace {

/// Runs `look` in the thread of the windows and waits for what it returns.
template <class Look>
auto inTheWindows(Look look) {
    std::exception_ptr failure;
    decltype(look()) seen{};
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            try {
                seen = look();
            } catch (const std::exception&) {
                failure = std::current_exception();
            }
        },
        Qt::BlockingQueuedConnection);
    if (failure != nullptr) std::rethrow_exception(failure);
    return seen;
}

/// Lets the windows do something that may last: a click that opens a modal form ends with it.
void leaveToTheWindows(const std::function<void()>& deed) {
    QMetaObject::invokeMethod(qApp, deed, Qt::QueuedConnection);
}

std::string text(const json& order, const char* key) {
    return order.at(key).get<std::string>();
}

QWidget& keyboardOwner(const desktop::QtDesktop& desktop, const std::string& form) {
    QWidget* plate = desktop.plateOf(formOf(desktop, form));
    if (plate == nullptr) throw std::runtime_error(form + " is not shown");
    QWidget* window = plate->window();
    return window->focusWidget() == nullptr ? *window : *window->focusWidget();
}

QWebEngineView& pageOf(const desktop::QtDesktop& desktop, const json& order) {
    auto& browser = dynamic_cast<desktop::BrowserView&>(
        widgetOf(desktop, text(order, "form"), text(order, "control")));
    if (browser.engineView() == nullptr || !browser.isComplete()) {
        throw std::runtime_error("the page is not there yet");
    }
    return *browser.engineView();
}

}  // namespace

Hand::Hand(desktop::QtDesktop& desktop) : desktop_(desktop) {
    desktop_.answerMessageBoxes([this](std::string_view text, std::string_view) {
        boxes_.push_back(text);
        return true;
    });
}

json Hand::carryOut(const json& order) {
    const std::string deed = text(order, "do");
    if (deed == "ask") return ask(order, text(order, "script"));
    if (deed == "follow") {
        follow(order);
        return nullptr;
    }
    for (const char* seen :
         {"forms", "focus", "control", "rows", "tab-order", "look", "boxes", "caught"}) {
        if (deed == seen) return inTheWindows([&] { return see(order); });
    }
    inTheWindows([&] {
        act(order);
        return true;
    });
    return nullptr;
}

json Hand::see(const json& order) const {
    const std::string deed = text(order, "do");
    if (deed == "forms") return openForms(desktop_);
    if (deed == "boxes") return boxes_;
    if (deed == "caught") {
        json files = json::array();
        for (const auto& trap : traps_) {
            if (trap->hasCaught()) files.push_back(trap->file());
        }
        return files;
    }
    const std::string form = text(order, "form");
    if (deed == "focus") {
        const forms::Control* focus = formOf(desktop_, form).focus;
        return focus == nullptr ? json(nullptr) : json(focus->name());
    }
    if (deed == "tab-order") return tabOrder(desktop_, form);
    if (deed == "look") {
        const std::string control = order.contains("control") ? text(order, "control") : "";
        if (takePicture(desktop_, form, control, text(order, "file"))) return true;
        throw std::runtime_error("no picture could be written");
    }
    const forms::Control& control = controlOf(desktop_, form, text(order, "control"));
    return deed == "rows" ? rowsOf(control) : describe(control);
}

void Hand::act(const json& order) {
    const std::string deed = text(order, "do");
    const std::string form = text(order, "form");
    if (deed == "catch") {
        setTrap(order);
        return;
    }
    if (deed == "key" || deed == "type") {
        press(order);
        return;
    }
    if (deed != "click" && deed != "double-click") {
        clickInList(order);
        return;
    }
    QWidget& widget = widgetOf(desktop_, form, text(order, "control"));
    if (!widget.isVisible()) throw std::runtime_error(text(order, "control") + " is not visible");
    leaveToTheWindows([&widget, deed] {
        QTest::mouseClick(&widget, Qt::LeftButton);
        if (deed == "click") return;
        QTest::mouseDClick(&widget, Qt::LeftButton);
        QTest::mouseRelease(&widget, Qt::LeftButton);
    });
}

void Hand::setTrap(const json& order) {
    traps_.push_back(std::make_unique<Trap>(
        desktop_, Trap::Prey{text(order, "form"), text(order, "control"),
                             order.at("at_least").get<double>(), text(order, "file")}));
}

void Hand::press(const json& order) {
    QWidget& owner = keyboardOwner(desktop_, text(order, "form"));
    if (order.contains("text")) {
        const QString typed = QString::fromStdString(text(order, "text"));
        leaveToTheWindows([&owner, typed] { QTest::keyClicks(&owner, typed); });
        return;
    }
    const QKeySequence keys(QString::fromStdString(text(order, "key")));
    if (keys.isEmpty()) throw std::runtime_error("there is no such key");
    leaveToTheWindows(
        [&owner, key = keys[0]] { QTest::keyClick(&owner, key.key(), key.keyboardModifiers()); });
}

void Hand::clickInList(const json& order) {
    const std::string deed = text(order, "do");
    auto& list = dynamic_cast<desktop::ListView&>(
        widgetOf(desktop_, text(order, "form"), text(order, "control")));
    QWidget* area = list.viewport();
    QPoint at;
    if (deed == "click-column") {
        QHeaderView& header = *list.header();
        area = header.viewport();
        at = {header.sectionViewportPosition(order.at("column").get<int>()) + 10,
              header.height() / 2};
    } else if (deed == "click-row" || deed == "check-row") {
        const int row = order.at("row").get<int>();
        list.scrollTo(list.model()->index(row, 0));
        at = deed == "check-row" ? list.checkBoxOf(row).center()
                                 : list.visualRect(list.model()->index(row, 1)).center();
    } else {
        throw std::runtime_error("nobody knows how to " + deed);
    }
    leaveToTheWindows([area, at] { QTest::mouseClick(area, Qt::LeftButton, {}, at); });
}

json Hand::ask(const json& order, const std::string& script) {
    const auto answer = std::make_shared<std::promise<std::string>>();
    std::future<std::string> given = answer->get_future();
    inTheWindows([&] {
        pageOf(desktop_, order)
            .page()
            ->runJavaScript(QString::fromStdString("JSON.stringify(" + script + ")"),
                            QWebEngineScript::ApplicationWorld, [answer](const QVariant& value) {
                                answer->set_value(value.toString().toStdString());
                            });
        return true;
    });
    if (given.wait_for(std::chrono::seconds(5)) != std::future_status::ready) {
        throw std::runtime_error("the page does not answer");
    }
    const std::string result = given.get();
    return result.empty() ? json(nullptr) : json::parse(result);
}

void Hand::follow(const json& order) {
    const json href = text(order, "href");
    const json place = ask(order,
                           "(function(){var a=Array.from(document.links).find(function(e){"
                           "return e.getAttribute('href')===" +
                               href.dump() +
                               ";});if(!a)return null;a.scrollIntoView({block:'nearest'});"
                               "var r=a.getBoundingClientRect();"
                               "return [r.left+r.width/2,r.top+r.height/2];})()");
    if (place.is_null()) throw std::runtime_error("the page has no link to " + href.dump());
    // A page takes no click before it has been painted, and does not say when that was.
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    inTheWindows([&] {
        QWidget* canvas = pageOf(desktop_, order).focusProxy();
        const QPoint at(static_cast<int>(place.at(0).get<double>()),
                        static_cast<int>(place.at(1).get<double>()));
        leaveToTheWindows([canvas, at] { QTest::mouseClick(canvas, Qt::LeftButton, {}, at); });
        return true;
    });
}

}  // namespace by_hand
