#pragma once

#include <QtWidgets/QProxyStyle>

namespace desktop {

/// The toolkit's neutral style with slim scroll bars and without its dotted focus frames: the views
/// mark the focus themselves.
class DesktopStyle final : public QProxyStyle {
public:
    DesktopStyle();

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                       SubControl part, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* answer) const override;
};

}  // namespace desktop
