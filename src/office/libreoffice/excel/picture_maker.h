#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "office/drawing/drawing_room.h"
#include "office/drawing/metafile.h"
#include "office/libreoffice/excel/same_fonts.h"
#include "office/libreoffice/excel/suite_pictures.h"

namespace libreoffice {

class Desk;

}  // namespace libreoffice

namespace libreoffice::excel {

/// Makes pictures of charts and copied ranges at three times screen density that carry their true
/// physical size.
///
/// The suite gives a metafile, which takes it a small part of the time of a picture, and the
/// drawing room draws it while the suite goes on. What the room would draw differently the suite
/// draws itself.
class PictureMaker {
public:
    PictureMaker(std::shared_ptr<Connection> connection,
                 std::shared_ptr<office::drawing::DrawingRoom> room);

    /// A chart as a PNG. One whose background lets things shine through stays transparent; all
    /// others come without an alpha channel.
    [[nodiscard]] office::Picture chart(const uno::Reference<css::drawing::XShape>& chart,
                                        const css::awt::Size& size, office::Sharpness sharpness);
    /// The same as a file, also in vectors; a PNG may still be on its way (`office::PictureFiles`).
    /// `office::Failure` 1004 if it can't be written; then there is none of that name.
    void writeChart(const uno::Reference<css::drawing::XShape>& chart, const std::string& path,
                    office::PictureKind kind);

    /// A copied picture on white. An empty one gives a white area.
    [[nodiscard]] office::Picture metafile(const uno::Sequence<sal_Int8>& metafile,
                                           const css::awt::Size& size, office::Sharpness sharpness);
    void writeMetafile(const uno::Sequence<sal_Int8>& metafile, const css::awt::Size& size,
                       const std::string& path, office::PictureKind kind);

    [[nodiscard]] SuitePictures& suite() { return suite_; }

    /// Why the suite has to draw a metafile itself; empty if the room draws it alike.
    [[nodiscard]] std::string drawnOtherwise(const uno::Sequence<sal_Int8>& metafile);

private:
    using Vectors = std::optional<office::drawing::VectorPicture>;

    [[nodiscard]] std::string drawnOtherwise(const office::drawing::Metafile& read);
    /// None if the suite has to draw it. `isOpaque` is asked where the picture doesn't tell;
    /// without it the picture is one on white.
    [[nodiscard]] Vectors drawable(const uno::Sequence<sal_Int8>& metafile,
                                   const css::awt::Size& size, office::Sharpness sharpness,
                                   const std::function<bool()>& isOpaque = {});
    [[nodiscard]] Vectors vectorsOf(const uno::Reference<css::drawing::XShape>& chart,
                                    const css::awt::Size& size, office::Sharpness sharpness);

    SuitePictures suite_;
    SameFonts fonts_;
    std::shared_ptr<office::drawing::DrawingRoom> room_;
};

/// The session's maker of pictures; made when it is first asked for.
[[nodiscard]] PictureMaker& pictureMaker(Desk& desk);

}  // namespace libreoffice::excel
