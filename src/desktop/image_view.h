#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QLabel>

#include "desktop/control_view.h"
#include "forms/controls.h"

namespace desktop {

/// A picture from a file's bytes or one of the program's own drawings.
class ImageView final : public QLabel, public ControlView {
public:
    ImageView(forms::Image& image, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }
    [[nodiscard]] bool isLightweight() const override { return true; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent*) override { secondPress_ = false; }

private:
    bool syncOwn() override;
    /// The picture in the pixels of this screen.
    [[nodiscard]] const QImage& rendered();
    void read(const QSize& wanted);

    forms::Image& image_;
    int version_ = -1;
    bool stretch_ = false;
    forms::Picture picture_;
    QImage read_;
    QImage rendered_;
    QSize renderedFor_;
    bool isVector_ = false;
    bool secondPress_ = false;
};

}  // namespace desktop
