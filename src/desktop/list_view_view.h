#pragma once

#include <QtWidgets/QTreeView>

#include <string>

#include "desktop/control_view.h"
#include "desktop/rows_model.h"
#include "forms/list_view.h"

namespace desktop {

class ListHeader;
class RowPainter;

/// A list in columns. Which row is chosen is the form's to say: a click or an arrow key is brought
/// to it, and what it then says is shown.
class ListViewView final : public QTreeView, public ControlView {
public:
    ListViewView(forms::ListView& list, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }
    void letGo(bool) override { model_.clear(); }

    /// Where a row's check box is, in pixels of the area of the rows. For tests.
    [[nodiscard]] QRect checkBoxOf(int row) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent*) override {}
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    bool syncOwn() override;
    void lookChanged() override;
    void syncColumns();
    void paintPlaceholder();
    void syncSelection();
    void toggle(int row);
    void click(int row);
    void hover(int row);
    void focusMoved();

    forms::ListView& list_;
    RowsModel model_;
    ListHeader* header_;   ///< the toolkit's
    RowPainter* painter_;  ///< the toolkit's
    std::string placeholder_;
    int version_ = -1;
    bool syncing_ = false;
};

}  // namespace desktop
