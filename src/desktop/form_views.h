#pragma once

#include <map>
#include <vector>

#include "desktop/control_view.h"
#include "forms/form.h"

namespace desktop {

/// The views of a form's controls: made, stacked and put in tab order.
class FormViews {
public:
    /// The views stand on `plate`, which destroys them.
    FormViews(forms::Form& form, QWidget& plate, ViewHost& host)
        : form_(form),
          plate_(plate),
          host_(host) {}

    /// Shows what has changed in the controls.
    void sync();
    /// The last call before the window goes.
    void detach();

    /// Null for a control that has no view yet.
    [[nodiscard]] ControlView* of(const forms::Control& control) const;
    /// The one that a widget is or stands in; null for none. What stands in a frame is not the
    /// frame's.
    [[nodiscard]] ControlView* holding(const QWidget& widget) const;
    /// The first that the Tab key can come to; null for none.
    [[nodiscard]] ControlView* firstStop(const QWidget& window) const;

private:
    [[nodiscard]] QWidget& parentFor(const forms::Control& control) const;
    void stack();
    void setTabOrder();

    forms::Form& form_;
    QWidget& plate_;
    ViewHost& host_;
    std::vector<ControlView*> views_;
    std::map<const forms::Control*, ControlView*> viewOf_;
    /// As last brought about.
    std::vector<const forms::Control*> stacked_;
    std::vector<const forms::Control*> tabOrder_;
};

}  // namespace desktop
