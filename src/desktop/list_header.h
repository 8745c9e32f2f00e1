#pragma once

#include <QtWidgets/QHeaderView>

namespace desktop {

/// The headers of a list, flat, in the shade that goes with the list's ground.
class ListHeader final : public QHeaderView {
public:
    explicit ListHeader(QWidget* parent);

    void setGround(const QColor& ground);

protected:
    void paintSection(QPainter* painter, const QRect& box, int section) const override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    void hover(int section);

    QColor ground_;
    int hovered_ = -1;
};

}  // namespace desktop
