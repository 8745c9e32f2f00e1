#pragma once

#include <QtWidgets/QRadioButton>

#include "desktop/control_view.h"
#include "forms/controls.h"

namespace desktop {

/// One of several choices: a dot in a ring, or a button that stays down. Tab comes to the chosen
/// one of a group, the arrow keys go from one to the next.
class OptionView final : public QRadioButton, public ControlView {
public:
    OptionView(forms::OptionButton& option, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// The model chooses, and this follows.
    void nextCheckState() override;
    [[nodiscard]] bool hitButton(const QPoint& at) const override { return rect().contains(at); }

private:
    bool syncOwn() override;
    void lookChanged() override { setText(caption().trimmed()); }
    void chooseNext(int step);
    void paintAsButton(QPainter& painter);
    void paintAsDot(QPainter& painter);

    forms::OptionButton& option_;
    bool graphical_ = false;
};

}  // namespace desktop
