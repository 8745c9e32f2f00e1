#pragma once

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/document/XExporter.hpp>
#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/private_folder.h"
#include "office/picture.h"

namespace libreoffice::excel {

/// The pixels of a picture whose size is in hundredths of a millimetre. Fewer than asked for where
/// they would take too much memory.
[[nodiscard]] css::awt::Size pixelsOf(const css::awt::Size& size, office::Sharpness sharpness);

/// Charts and copied ranges as the suite draws them: PNG files at three times screen density that
/// carry their true physical size, and vectors.
/// Sizes are in hundredths of a millimetre.
///
/// Opaque pictures are laid on the page of a drawing that belongs to no window and to none of the
/// suite's lists of documents. It goes with this object, and also if this process dies. Neither a
/// user's document nor the clipboard is touched.
class SuitePictures {
public:
    explicit SuitePictures(std::shared_ptr<Connection> connection);
    SuitePictures(const SuitePictures&) = delete;
    SuitePictures& operator=(const SuitePictures&) = delete;
    ~SuitePictures();

    /// A chart as a PNG file. A chart whose background lets things shine through stays transparent;
    /// all others come without an alpha channel. `office::Failure` 1004 if the file can't be
    /// written; then there is none of that name.
    void writeChart(const uno::Reference<css::drawing::XShape>& chart, const std::string& path);

    /// A copied picture as a PNG file on white. An empty one gives a white area.
    void writeMetafile(const uno::Sequence<sal_Int8>& metafile, const css::awt::Size& size,
                       const std::string& path);

    /// The same in vectors, as an SVG text.
    [[nodiscard]] std::string svgOfChart(const uno::Reference<css::drawing::XShape>& chart);
    [[nodiscard]] std::string svgOfMetafile(const uno::Sequence<sal_Int8>& metafile,
                                            const css::awt::Size& size);

    /// The same as the bytes of an EMF. A copied picture is on white.
    [[nodiscard]] std::string emfOfChart(const uno::Reference<css::drawing::XShape>& chart);
    [[nodiscard]] std::string emfOfMetafile(const uno::Sequence<sal_Int8>& metafile,
                                            const css::awt::Size& size);

    /// What a chart shows in the suite's own vector format, as a range is copied.
    [[nodiscard]] uno::Sequence<sal_Int8> metafileOf(
        const uno::Reference<css::graphic::XGraphic>& graphic);
    /// A copied picture as shapes show it; none if it is empty.
    [[nodiscard]] uno::Reference<css::graphic::XGraphic> graphicOf(
        const uno::Sequence<sal_Int8>& metafile);

private:
    struct Page;

    Page& page();
    void layOnPage(const uno::Reference<css::graphic::XGraphic>& graphic,
                   const css::awt::Size& size);
    /// A page or a shape as it is.
    [[nodiscard]] std::string written(const uno::Reference<css::document::XExporter>& exporter,
                                      const char* mediaType);
    /// What the suite is made to write into the file of this name.
    [[nodiscard]] std::string writtenBy(const std::function<void(const std::string& file)>& write);
    [[nodiscard]] std::string svgOfPage(const uno::Reference<css::graphic::XGraphic>& graphic,
                                        const css::awt::Size& size);
    void writePage(const uno::Reference<css::graphic::XGraphic>& graphic,
                   const css::awt::Size& size, const std::string& path);
    [[nodiscard]] const uno::Reference<css::document::XExporter>& exporterOf(
        const uno::Reference<css::drawing::XShape>& shape);

    std::shared_ptr<Connection> connection_;
    std::unique_ptr<Page> page_;
    std::unique_ptr<PrivateFolder> folder_;
    uno::Reference<css::document::XExporter> shapeExporter_;
};

struct ChartLook {
    uno::Reference<css::graphic::XGraphic> graphic;
    uno::Reference<uno::XInterface> model;
};
/// `office::Failure` 1004 if a chart shows nothing, such as one that has gone.
[[nodiscard]] ChartLook lookOf(const uno::Reference<css::drawing::XShape>& chart);

/// Whether something can be seen in a size.
[[nodiscard]] bool isArea(const css::awt::Size& size);

/// The size of a chart. `office::Failure` 1004 for one without width or height: while it is known
/// which chart is meant, since its picture would fail with a whole output.
[[nodiscard]] css::awt::Size areaOf(const uno::Reference<css::drawing::XShape>& chart);

/// Whether it covers all of its area.
[[nodiscard]] bool isOpaque(const ChartLook& chart);

}  // namespace libreoffice::excel
