#pragma once

#include <QtGui/QColor>
#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

#include <functional>
#include <optional>
#include <string>

#include "forms/control.h"

class QWebEngineProfile;

namespace desktop {

/// What the views of a form need of the window around them.
class ViewHost {
public:
    ViewHost() = default;
    ViewHost(const ViewHost&) = delete;
    ViewHost& operator=(const ViewHost&) = delete;
    virtual ~ViewHost() = default;

    /// Brings to the form what a user did. It runs at once in most cases; it is put off while a
    /// page is being asked, and dropped once the form's window has gone.
    virtual void deliver(std::function<void()> event) = 0;
    /// As `deliver`, but from the event loop, when the caller has returned.
    virtual void deliverLater(std::function<void()> event) = 0;
    /// Puts off all events of all forms, or lets them run again: while a page is being asked, the
    /// toolkit's own events run.
    virtual void holdEvents(bool hold) = 0;
    /// Whether the user goes about with the keyboard: only then is the focus marked.
    [[nodiscard]] virtual bool keyboardInUse() const = 0;
    /// What all pages share. The first call starts the engine.
    [[nodiscard]] virtual QWebEngineProfile& browserProfile() = 0;
};

/// One control on the screen: a widget that compares its control with what it drew last. It paints
/// from its own copy only, so that it may outlive the control by the rest of an event.
class ControlView {
public:
    ControlView(forms::Control& control, QWidget& widget, ViewHost& host)
        : control_(control),
          widget_(widget),
          host_(host) {}
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;
    virtual ~ControlView() = default;

    [[nodiscard]] QWidget& widget() const { return widget_; }
    /// Takes over what has changed in the control. Raises no event of the control.
    void sync();
    /// The last call before the window goes; `controlIsThere` unless the control has gone first.
    virtual void detach(bool /*controlIsThere*/) {}

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
        std::string accessibleDescription;
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
    /// Fills the control with its own colour, if it has one and is not transparent.
    void paintBack(QPainter& painter);
    /// Whether it has the keyboard, and the user goes about with it.
    [[nodiscard]] bool marksFocus();
    void tell(std::function<void()> event) const { host_.deliver(std::move(event)); }
    [[nodiscard]] ViewHost& host() const { return host_; }

private:
    [[nodiscard]] Look currentLook() const;
    void applyLook(const Look& before);

    forms::Control& control_;
    QWidget& widget_;
    ViewHost& host_;
    Look look_;
    bool hasLook_ = false;
};

/// The view for a control's class, as a child of the widget of its container, which destroys it.
[[nodiscard]] ControlView* makeControlView(forms::Control& control, QWidget& parent,
                                           ViewHost& host);

// The same by families, each in the file of its name.
[[nodiscard]] ControlView* makeStillView(forms::Control& control, QWidget& parent, ViewHost& host);
[[nodiscard]] ControlView* makeButtonView(forms::Control& control, QWidget& parent, ViewHost& host);
[[nodiscard]] ControlView* makeInputView(forms::Control& control, QWidget& parent, ViewHost& host);
[[nodiscard]] ControlView* makeTitleBarView(forms::Control& control, QWidget& parent,
                                            ViewHost& host);

template <class View, class Model>
ControlView* makeView(forms::Control& control, QWidget& parent, ViewHost& host) {
    return new View(dynamic_cast<Model&>(control), parent, host);
}

}  // namespace desktop
