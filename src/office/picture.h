#pragma once

#include <cstdint>
#include <future>
#include <memory>
#include <optional>
#include <string>

#include "office/vector_file.h"

namespace office {

/// How many dots a picture has for each pixel of a screen with 96 of them to the inch.
enum class Sharpness : std::int32_t {
    /// To look at beside the list.
    Screen = 1,
    /// For projectors and paper.
    Crisp = 3
};

/// A PNG picture with its true size, which may still be on its way: who takes it goes on, and asks
/// for the bytes once it needs them.
struct Picture {
    /// In points.
    double widthPt = 0;
    double heightPt = 0;
    /// The same for pictures that are drawn alike; empty if nothing is known.
    std::string look;
    /// The file's bytes. `get` waits for them; `Failure` 1004 if the picture could not be drawn.
    std::shared_future<std::string> png;
};

/// One that has been drawn.
[[nodiscard]] Picture finishedPicture(double widthPt, double heightPt, std::string png);

/// Picture files that an application has said to have written and that may still be on their way.
class PictureFiles {
public:
    PictureFiles() = default;
    PictureFiles(const PictureFiles&) = delete;
    PictureFiles& operator=(const PictureFiles&) = delete;
    virtual ~PictureFiles() = default;

    /// Waits until the file is whole; at once for a path that nothing is on its way to. `Failure`
    /// 1004 if the picture could not be drawn or written; then there is no file of that name.
    virtual void complete(const std::string& path) = 0;
    /// The picture itself in the file's stead, which is no longer there. None if nothing has been
    /// on its way to this path.
    virtual std::optional<Picture> take(const std::string& path) = 0;
    /// A picture of an SVG for programs that don't read it, about as dense as a screen; what the
    /// SVG leaves free is see-through.
    [[nodiscard]] virtual Picture draw(const VectorFile& svg) = 0;
};

using PictureFilesPtr = std::shared_ptr<PictureFiles>;

}  // namespace office
