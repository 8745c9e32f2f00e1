#pragma once

#include <cstdint>
#include <string>

namespace office::drawing {

/// What a PNG file is to be drawn from, and how large.
struct VectorPicture {
    /// An SVG, or a metafile (`isMetafile`).
    std::string vectors;
    /// In pixels.
    std::int32_t width = 0;
    std::int32_t height = 0;
    /// In points; the file carries the density that follows from it.
    double widthPt = 0;
    double heightPt = 0;
    /// Whether what the vectors leave free stays see-through; it becomes white otherwise, and the
    /// file has no alpha channel.
    bool isTranslucent = false;
};

/// Draws it: the vectors fill the picture, whatever their proportions. Nothing outside of them is
/// read. `Failure` 1004 if it can't be drawn, with the reason.
///
/// For any thread, and for pictures of any size: a large one is drawn in strips, so that it takes
/// little memory beyond the file's bytes.
[[nodiscard]] std::string pngOf(const VectorPicture& picture);

}  // namespace office::drawing
