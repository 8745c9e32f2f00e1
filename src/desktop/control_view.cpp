#include "desktop/control_view.h"

#include <utility>

#include "desktop/browser_view.h"
#include "desktop/list_view.h"
#include "desktop/looks.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace desktop {

namespace {

QColor groundOf(const forms::Control& control) {
    if (control.backColour && !control.transparent) return colourOf(*control.backColour);
    if (control.container() != nullptr) return groundOf(*control.container());
    return colourOf(control.form().backColour);
}

std::optional<QColor> maybeColour(const std::optional<forms::Colour>& colour) {
    return colour ? std::optional(colourOf(*colour)) : std::nullopt;
}

}  // namespace

ControlView::Look ControlView::currentLook() const {
    return {control_.place,
            control_.visible,
            control_.enabled,
            control_.transparent,
            control_.caption,
            control_.toolTip,
            control_.accessibleName.empty() ? control_.caption : control_.accessibleName,
            control_.accessibleDescription,
            control_.font,
            groundOf(control_),
            maybeColour(control_.backColour),
            maybeColour(control_.foreColour)};
}

void ControlView::sync() {
    Look now = currentLook();
    const bool lookDiffers = !hasLook_ || !(now == look_);
    if (lookDiffers) {
        const Look before = std::exchange(look_, std::move(now));
        applyLook(before);
        hasLook_ = true;
        lookChanged();
    }
    if (syncOwn() || lookDiffers) widget().update();
}

void ControlView::applyLook(const Look& before) {
    QWidget& shown = widget();
    const bool first = !hasLook_;
    if (first || look_.place != before.place) shown.setGeometry(pixelsOf(look_.place));
    if (first || look_.enabled != before.enabled) shown.setEnabled(look_.enabled);
    if (first || look_.toolTip != before.toolTip) shown.setToolTip(textOf(look_.toolTip));
    if (first || look_.accessibleName != before.accessibleName) {
        shown.setAccessibleName(textOf(look_.accessibleName));
    }
    if (first || look_.accessibleDescription != before.accessibleDescription) {
        shown.setAccessibleDescription(textOf(look_.accessibleDescription));
    }
    if (first) shown.setObjectName(textOf(control_.name()));
    if (first || look_.font != before.font) shown.setFont(fontOf(look_.font));
    if (first || look_.visible != before.visible) shown.setVisible(look_.visible);
}

QString ControlView::caption() const {
    return textOf(look_.caption);
}

void ControlView::paintBack(QPainter& painter) {
    if (look_.back && !look_.transparent) painter.fillRect(widget().rect(), *look_.back);
}

bool ControlView::marksFocus() {
    return widget().hasFocus() && host_.keyboardInUse();
}

QColor ControlView::textColour() const {
    const QColor full = look_.fore ? *look_.fore : textColourOn(look_.ground);
    return look_.enabled ? full : blend(look_.ground, full, 0.4);
}

ControlView* makeControlView(forms::Control& control, QWidget& parent, ViewHost& host) {
    using Kind = forms::ControlClass;
    switch (control.controlClass()) {
        case Kind::CommandButton:
        case Kind::CheckBox:
        case Kind::OptionButton:
            return makeButtonView(control, parent, host);
        case Kind::TextBox:
        case Kind::Slider:
            return makeInputView(control, parent, host);
        case Kind::TitleBar:
            return makeTitleBarView(control, parent, host);
        case Kind::ListView:
            return makeView<ListView, forms::ListView>(control, parent, host);
        case Kind::WebBrowser:
            return makeView<BrowserView, forms::WebBrowser>(control, parent, host);
        default:
            return makeStillView(control, parent, host);
    }
}

}  // namespace desktop
