#pragma once

#include <nlohmann/json.hpp>

#include <string>

#include "desktop/qt_desktop.h"

/// What somebody at the screen sees.
namespace by_hand {

/// The control of a loaded form by name; those of a control array as "Option1(2)", counted from 0
/// in the order of their making. Throws `std::runtime_error` if there is none.
[[nodiscard]] forms::Control& controlOf(const desktop::QtDesktop& desktop, const std::string& form,
                                        const std::string& control);
[[nodiscard]] forms::Form& formOf(const desktop::QtDesktop& desktop, const std::string& form);
/// The widget that draws the control.
[[nodiscard]] QWidget& widgetOf(const desktop::QtDesktop& desktop, const std::string& form,
                                const std::string& control);

/// Writes a picture of a form as it stands on the screen, or of the part that a control of it takes
/// up, a PNG in the screen's own pixels. False if the form has no window or the file cannot be
/// written.
bool takePicture(const desktop::QtDesktop& desktop, const std::string& form,
                 const std::string& control, const std::string& file);

/// The names of the forms whose windows are open, in the order of loading.
[[nodiscard]] nlohmann::json openForms(const desktop::QtDesktop& desktop);
/// {"caption", "enabled", "visible", "value"}: a value where the class of the control has one.
[[nodiscard]] nlohmann::json describe(const forms::Control& control);
/// [[control, what a screen reader calls it]] for the widgets that Tab leads to, in its order. A
/// page counts as one.
[[nodiscard]] nlohmann::json tabOrder(const desktop::QtDesktop& desktop, const std::string& form);
/// {"selected", "columns": widths in twips, "rows": [{"checked", "icon", "texts"}]} of a list.
[[nodiscard]] nlohmann::json rowsOf(const forms::Control& control);

}  // namespace by_hand
