#pragma once

#include "forms/control.h"
#include "forms/form.h"

namespace furniture {

/// The bar along the top of a form, which has no frame of the system: its caption, and buttons that
/// close, minimise and maximise the form. A press on the bar itself drags the form; the desktop
/// lets the window system do that.
class TitleBar : public forms::Control {
public:
    TitleBar(forms::Form& owner, std::string name, forms::Place at)
        : Control(owner, forms::ControlClass::TitleBar, std::move(name), at) {}

    /// `TBARX`: unloads the form.
    void pressClose();
    /// `TBAR_`: minimises the form.
    void pressMinimise();
    /// `TBARMax`: switches between normal and maximised.
    void pressMaximise();
    /// The same for a double click on the bar of a form that can be enlarged.
    void doubleClick();

    bool ShowClose = true;
    bool ShowMinimized = true;
    bool ShowMaximized = true;
    bool ShowCloseEnabled = true;
    bool ShowMinimizedEnabled = true;
    bool ShowMaximizedEnabled = true;

    /// The two gradients, from the top to the middle and from there to the bottom.
    forms::Colour BackColorV1Begin;
    forms::Colour BackColorV1End;
    forms::Colour BackColorV2Begin;
    forms::Colour BackColorV2End;
    forms::Colour CaptionColor;
    forms::Colour BorderColorDarkLight;

private:
    void switchSize();
};

}  // namespace furniture
