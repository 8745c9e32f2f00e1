#pragma once

#include <QtWidgets/QAbstractButton>

#include "desktop/view_host.h"

namespace desktop {

/// One of the buttons of a title bar, drawn as strokes.
class TitelBarButton final : public QAbstractButton {
public:
    enum class Sign { Close, Minimise, Maximise };

    TitelBarButton(Sign sign, QWidget& parent, const ViewHost& host);

    void setColours(const QColor& ground, const QColor& stroke);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void paintSign(QPainter& painter, const QColor& stroke) const;

    Sign sign_;
    const ViewHost& host_;
    QColor ground_;
    QColor stroke_;
};

}  // namespace desktop
