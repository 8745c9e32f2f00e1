#include "sight.h"

#include <QtGui/QAccessible>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <map>
#include <stdexcept>

#include "forms/controls.h"
#include "forms/list_view.h"

namespace by_hand {

using nlohmann::json;

forms::Form& formOf(const desktop::QtDesktop& desktop, const std::string& form) {
    forms::Form* found = desktop.findLoaded(form);
    if (found == nullptr) throw std::runtime_error("no form " + form + " is loaded");
    return *found;
}

forms::Control& controlOf(const desktop::QtDesktop& desktop, const std::string& form,
                          const std::string& control) {
    const std::size_t bracket = control.find('(');
    const std::string name = control.substr(0, bracket);
    int index = bracket == std::string::npos ? 0 : std::stoi(control.substr(bracket + 1));
    for (forms::Control* each : formOf(desktop, form).controls()) {
        if (forms::sameFormName(each->name(), name) && index-- == 0) return *each;
    }
    throw std::runtime_error(form + " has no control " + control);
}

QWidget& widgetOf(const desktop::QtDesktop& desktop, const std::string& form,
                  const std::string& control) {
    QWidget* widget = desktop.widgetOf(controlOf(desktop, form, control));
    if (widget == nullptr) throw std::runtime_error(form + " is not shown");
    return *widget;
}

bool takePicture(const desktop::QtDesktop& desktop, const std::string& form,
                 const std::string& control, const std::string& file) {
    QWidget* plate = desktop.plateOf(formOf(desktop, form));
    if (plate == nullptr) return false;
    QWidget* const window = plate->window();
    QRect part = window->rect();
    if (!control.empty()) {
        const QWidget& shown = widgetOf(desktop, form, control);
        part = QRect(shown.mapTo(window, QPoint(0, 0)), shown.size());
    }
    return window->grab(part).save(QString::fromStdString(file), "PNG");
}

json openForms(const desktop::QtDesktop& desktop) {
    json names = json::array();
    for (const forms::Form* form : desktop.loadedForms()) {
        const QWidget* plate = desktop.plateOf(*form);
        if (plate != nullptr && plate->window()->isVisible()) names.push_back(form->name());
    }
    return names;
}

json describe(const forms::Control& control) {
    json seen = {
        {"caption", control.caption}, {"enabled", control.enabled}, {"visible", control.visible}};
    if (const auto* box = dynamic_cast<const forms::CheckBox*>(&control)) {
        seen["value"] = static_cast<int>(box->value());
    } else if (const auto* option = dynamic_cast<const forms::OptionButton*>(&control)) {
        seen["value"] = option->value();
    } else if (const auto* text = dynamic_cast<const forms::TextBox*>(&control)) {
        seen["value"] = text->text();
    } else if (const auto* image = dynamic_cast<const forms::Image*>(&control)) {
        seen["value"] = image->version();
    }
    return seen;
}

json tabOrder(const desktop::QtDesktop& desktop, const std::string& form) {
    QWidget* plate = desktop.plateOf(formOf(desktop, form));
    if (plate == nullptr) throw std::runtime_error(form + " is not shown");
    std::map<const QWidget*, std::string> controls;
    for (const forms::Control* control : formOf(desktop, form).controls()) {
        if (const QWidget* widget = desktop.widgetOf(*control)) controls[widget] = control->name();
    }
    json stops = json::array();
    QWidget* const window = plate->window();
    for (QWidget* stop = window->nextInFocusChain(); stop != window;
         stop = stop->nextInFocusChain()) {
        const bool isStop = (stop->focusPolicy() & Qt::TabFocus) != 0 && stop->isEnabled();
        const auto control = controls.find(stop);
        if (!isStop || !stop->isVisible() || control == controls.end()) continue;
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(stop);
        const QString name = spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
        stops.push_back({control->second, name.toStdString()});
    }
    return stops;
}

json rowsOf(const forms::Control& control) {
    const auto& list = dynamic_cast<const forms::ListView&>(control);
    json seen = {{"selected", -1}, {"rows", json::array()}, {"columns", json::array()}};
    for (const auto& column : list.columns) seen["columns"].push_back(column.width);
    if (list.rows == nullptr) return seen;
    seen["selected"] = list.rows->selected();
    for (std::size_t row = 0; row < list.rows->count(); ++row) {
        json texts = json::array();
        for (std::size_t column = 0; column < list.columns.size(); ++column) {
            texts.push_back(list.rows->text(row, column));
        }
        seen["rows"].push_back({{"checked", list.rows->isChecked(row)},
                                {"icon", list.rows->icon(row)},
                                {"texts", texts}});
    }
    return seen;
}

}  // namespace by_hand
