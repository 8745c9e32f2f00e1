#pragma once

#include <QtWidgets/QWidget>

#include "desktop/control_view.h"
#include "furniture/titel_bar.h"

namespace desktop {

class TitelBarButton;

/// The bar along the top of a form: two gradients, the caption, and the buttons at the right end.
/// Pressed elsewhere it lets the window system drag the form.
class TitelBarView final : public QWidget, public ControlView {
public:
    TitelBarView(furniture::TitelBar& bar, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    bool syncOwn() override;
    void layOutButtons();

    struct Drawn {
        forms::Colour topBegin, topEnd, bottomBegin, bottomEnd, caption, line;
        bool close = false, minimise = false, maximise = false;
        bool closeEnabled = false, minimiseEnabled = false, maximiseEnabled = false;
        bool operator==(const Drawn&) const = default;
    };

    furniture::TitelBar& bar_;
    Drawn shown_;
    TitelBarButton* minimise_;  ///< as the others, the toolkit's
    TitelBarButton* maximise_;
    TitelBarButton* close_;
};

}  // namespace desktop
