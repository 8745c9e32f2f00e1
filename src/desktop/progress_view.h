#pragma once

#include <QtWidgets/QProgressBar>

#include "desktop/control_view.h"
#include "furniture/progress_bar.h"

namespace desktop {

/// A bar that fills from the left, or from below, with its caption over both parts.
class ProgressView final : public QProgressBar, public ControlView {
public:
    ProgressView(furniture::ProgressBar& bar, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool syncOwn() override;
    [[nodiscard]] QRectF filledPart(const QRectF& track) const;

    struct Drawn {
        std::int32_t value = 0;
        forms::Colour bar;
        forms::Colour border;
        bool borderDefault = true;
        furniture::ProgressBar::Orientation orientation =
            furniture::ProgressBar::Orientation::Horizontal;
        forms::Alignment alignment = forms::Alignment::Centre;
        bool operator==(const Drawn&) const = default;
    };

    furniture::ProgressBar& bar_;
    Drawn drawn_;
};

}  // namespace desktop
