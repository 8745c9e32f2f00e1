#include "desktop/picture_box_view.h"

#include <QtGui/QPainter>

namespace desktop {

void PictureBoxView::paintEvent(QPaintEvent*) {
    if (look().transparent || !look().back) return;
    QPainter(this).fillRect(rect(), *look().back);
}

}  // namespace desktop
