#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "office/drawing/drawn_widths.h"

namespace office::drawing {

/// A picture in LibreOffice's own vector format (SVM). What an operation depends on, such as the
/// colours and the clip, is resolved for each. Lengths are in the units of the picture, downwards.
struct Metafile {
    struct Point {
        double x = 0;
        double y = 0;
    };

    struct Colour {
        double red = 0;
        double green = 0;
        double blue = 0;
    };

    /// From one edge of the outline to the other.
    struct Gradient {
        Colour from;
        Colour to;
        /// In degrees, to the left; 0 leads downwards.
        double angle = 0;
        /// The share at the beginning that has one colour.
        double border = 0;
    };

    struct Line {
        std::vector<Point> points;
        /// Of each point, whether it is one of the two that bend the line before the next point;
        /// empty if none is.
        std::vector<bool> isControl;
        bool isClosed = false;
    };

    /// Surrounds what an odd number of its lines surrounds.
    using Outline = std::vector<Line>;

    struct Pen {
        enum class Join { None, Bevel, Miter, Round };
        enum class Cap { Butt, Round, Square };

        Colour colour;
        /// 0 is as thin as it can be drawn.
        double width = 0;
        Join join = Join::Round;
        Cap cap = Cap::Butt;
        /// Lengths of dashes and of the gaps behind them in turns; empty for a solid line.
        std::vector<double> dashes;
    };

    struct Shape {
        Outline outline;
        std::variant<std::monostate, Colour, Gradient> fill;
        std::optional<Pen> pen;
    };

    struct Font {
        NamedFont name;
        /// Of the em square.
        double height = 0;
        /// In degrees, to the left.
        double angle = 0;
        int underlines = 0;
        bool isStruckOut = false;
    };

    struct Text {
        /// On the base line.
        Point start;
        std::string characters;
        /// For each byte, how far from the start its character begins.
        std::vector<double> places;
        double width = 0;
        /// Among the fonts.
        std::size_t font = 0;
        Colour colour;
        /// Of the line beneath.
        Colour lineColour;
    };

    /// What follows up to the end of it shines through as one.
    struct Veil {
        double opacity = 1;
    };
    struct EndOfVeil {};

    struct Operation {
        std::variant<Shape, Text, Veil, EndOfVeil> what;
        /// Among the clips.
        std::size_t clip = 0;
    };

    double width = 0;
    double height = 0;
    std::vector<Operation> operations;
    std::vector<Font> fonts;
    /// What each shows is surrounded by all of its outlines. The first one shows all.
    std::vector<std::vector<Outline>> clips = {{}};
    /// What is in the picture that can't be drawn from this; empty if all can.
    std::string unknown;
};

[[nodiscard]] bool isMetafile(std::string_view bytes);

/// In hundredths of a millimetre.
struct MetafileSize {
    double width = 0;
    double height = 0;
};
/// The size that one gives for itself; 0 by 0 if it gives none in that unit.
[[nodiscard]] MetafileSize sizeOfMetafile(std::string_view bytes);

/// Reads one. What is damaged counts as unknown.
[[nodiscard]] Metafile readMetafile(std::string_view bytes);

}  // namespace office::drawing
