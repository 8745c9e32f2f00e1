#pragma once

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

#include <functional>
#include <optional>
#include <string>

#include "desktop/view_host.h"
#include "forms/control.h"

namespace desktop {

/// One control on the screen: a widget that compares its control with what it drew last. It paints
/// from its own copy only, so that it may outlive the control by the rest of an event.
class ControlView {
public:
    ControlView(forms::Control& control, ViewHost& host) : control_(control), host_(host) {}
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;
    virtual ~ControlView() = default;

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// Takes over what has changed in the control. Raises no event of the control.
    void sync();
    /// The last call before the window goes. Whether the control itself is still there is said.
    virtual void letGo(bool) {}

    /// Only to be read while the control is there.
    [[nodiscard]] forms::Control& control() const { return control_; }
    /// Controls without a window of their own stand behind all those that have one.
    [[nodiscard]] virtual bool isLightweight() const { return false; }

protected:
    /// What all controls show.
    struct Look {
        forms::Place place;
        bool visible = true;
        bool enabled = true;
        bool transparent = false;
        std::string caption;
        std::string toolTip;
        std::string accessibleName;
        forms::Font font;
        QColor ground;  ///< what is seen behind the text, the control's own colour or one below
        std::optional<QColor> back;  ///< of its own
        std::optional<QColor> fore;
        bool operator==(const Look&) const = default;
    };

    /// Takes over what only this kind of control has; tells whether it has to be painted again.
    virtual bool syncOwn() = 0;
    virtual void lookChanged() {}

    [[nodiscard]] const Look& look() const { return look_; }
    [[nodiscard]] QString caption() const;
    /// The colour of its text, paler while it is disabled.
    [[nodiscard]] QColor textColour() const;
    /// Whether it has the keyboard, and the user goes about with it.
    [[nodiscard]] bool marksFocus();
    void tell(std::function<void()> event) const { host_.deliver(std::move(event)); }
    [[nodiscard]] ViewHost& host() const { return host_; }

private:
    [[nodiscard]] Look currentLook() const;
    void applyLook(const Look& before);

    forms::Control& control_;
    ViewHost& host_;
    Look look_;
    bool hasLook_ = false;
};

/// The view for a control's class, as a child of the widget of its container.
[[nodiscard]] ControlView* makeControlView(forms::Control& control, QWidget& parent,
                                           ViewHost& host);

}  // namespace desktop
