#include "desktop/browser_view.h"
#include "desktop/button_view.h"
#include "desktop/check_box_view.h"
#include "desktop/control_view.h"
#include "desktop/frame_view.h"
#include "desktop/image_view.h"
#include "desktop/label_view.h"
#include "desktop/list_view_view.h"
#include "desktop/option_view.h"
#include "desktop/picture_box_view.h"
#include "desktop/progress_view.h"
#include "desktop/shape_view.h"
#include "desktop/slider_view.h"
#include "desktop/text_box_view.h"
#include "desktop/titel_bar_view.h"

namespace desktop {

namespace {

/// The toolkit destroys a widget with its parent.
template <class View, class Model>
ControlView* make(forms::Control& control, QWidget& parent, ViewHost& host) {
    return new View(dynamic_cast<Model&>(control), parent, host);
}

}  // namespace

ControlView* makeControlView(forms::Control& control, QWidget& parent, ViewHost& host) {
    using Kind = forms::ControlClass;
    switch (control.controlClass()) {
        case Kind::Label:
            return make<LabelView, forms::Label>(control, parent, host);
        case Kind::Frame:
            return make<FrameView, forms::Frame>(control, parent, host);
        case Kind::CommandButton:
            return make<ButtonView, forms::CommandButton>(control, parent, host);
        case Kind::CheckBox:
            return make<CheckBoxView, forms::CheckBox>(control, parent, host);
        case Kind::OptionButton:
            return make<OptionView, forms::OptionButton>(control, parent, host);
        case Kind::TextBox:
            return make<TextBoxView, forms::TextBox>(control, parent, host);
        case Kind::ListView:
            return make<ListViewView, forms::ListView>(control, parent, host);
        case Kind::Slider:
            return make<SliderView, forms::Slider>(control, parent, host);
        case Kind::Image:
            return make<ImageView, forms::Image>(control, parent, host);
        case Kind::Shape:
            return make<ShapeView, forms::Shape>(control, parent, host);
        case Kind::WebBrowser:
            return make<BrowserView, forms::WebBrowser>(control, parent, host);
        case Kind::ProgressBar:
            return make<ProgressView, furniture::ProgressBar>(control, parent, host);
        case Kind::TitelBar:
            return make<TitelBarView, furniture::TitelBar>(control, parent, host);
        case Kind::PictureBox:
            break;
    }
    return new PictureBoxView(control, parent, host);
}

}  // namespace desktop
