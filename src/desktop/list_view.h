#pragma once

#include <QtCore/QElapsedTimer>
#include <QtWidgets/QTreeView>

#include <string>

#include "desktop/control_view.h"
#include "desktop/list_parts.h"
#include "forms/list_view.h"

namespace desktop {

/// A list in columns. Which rows are chosen is the form's to say: a click or an arrow key is
/// brought to it, and what it then says is shown.
class ListView final : public QTreeView, public ControlView {
public:
    ListView(forms::ListView& list, QWidget& parent, ViewHost& host);

    void detach(bool /*controlIsThere*/) override { model_.clear(); }

    /// Where a row's check box is, in pixels of the area of the rows. For tests.
    [[nodiscard]] QRect checkBoxOf(int row) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    using Pick = forms::ListView::Pick;

    bool syncOwn() override;
    void lookChanged() override;
    void syncColumns();
    void syncSelection();
    void paintPlaceholder();
    void paintDropLine();
    void toggle(int row);
    void sortBy(int column);
    void click(int row, Pick pick);
    [[nodiscard]] int markedRows() const;
    [[nodiscard]] bool isOneOfSeveral(int row) const;
    void hover(int row);
    void drag(const QPoint& to);
    void endDrag(bool drop);
    void focusMoved();
    /// Runs what a key asks for; false for a key that the list knows nothing of.
    bool runKey(const QKeyEvent& event);
    /// A name is being typed, to which a blank then belongs.
    [[nodiscard]] bool isTyping() const;

    forms::ListView& list_;
    RowsModel model_;
    ListHeader* header_;   ///< the toolkit's
    RowPainter* painter_;  ///< the toolkit's
    std::string placeholder_;
    int version_ = -1;
    bool syncing_ = false;
    /// How an arrow key that is under way chooses.
    Pick keyPick_ = Pick::Only;
    QElapsedTimer sinceLetter_;
    /// The row on which the button went down, or -1.
    int pressedRow_ = -1;
    QPoint pressedAt_;
    /// A press on one of several chosen rows may begin to drag them all: it is a click only when
    /// the button comes up at its place.
    bool clickIsOpen_ = false;
};

}  // namespace desktop
