#pragma once

#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>

#include <string>
#include <string_view>

#include "forms/controls.h"
#include "forms/looks.h"

/// From the words of the forms to those of the toolkit. The toolkit's pixels are those of an
/// unscaled screen; it scales them itself.
namespace desktop {

[[nodiscard]] QString textOf(std::string_view text);
[[nodiscard]] std::string textOf(const QString& text);

[[nodiscard]] int pixelsOf(forms::Twips length);
[[nodiscard]] forms::Twips twipsOf(int pixels);
/// Each edge is rounded by itself, so that what touches in twips touches on the screen.
[[nodiscard]] QRect pixelsOf(const forms::Place& place);

/// Across the place, and in the middle of its height.
[[nodiscard]] Qt::Alignment alignmentOf(forms::Alignment alignment);

[[nodiscard]] QColor colourOf(forms::Colour colour);
/// `share` of the second colour, 0 to 1, over the first.
[[nodiscard]] QColor blend(const QColor& under, const QColor& over, double share);
[[nodiscard]] bool isDark(const QColor& ground);
/// Near-black or white, whichever reads better on the ground.
[[nodiscard]] QColor textColourOn(const QColor& ground);
/// The blue of everything that is chosen or has the focus, in the shade that the ground asks for,
/// and the shade of areas with white on them.
[[nodiscard]] QColor accentOn(const QColor& ground);
inline constexpr QColor strongAccent(0x25, 0x63, 0xeb);
/// The inside of a box or ring that is not chosen.
[[nodiscard]] QColor hollowOn(const QColor& ground);

/// In points of 1/72 inch at 96 pixels to the inch, whatever the screen says of itself: text has to
/// fit into places that are measured in twips.
[[nodiscard]] QFont fontOf(const forms::Font& font);

}  // namespace desktop
