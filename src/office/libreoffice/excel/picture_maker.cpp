#include "office/libreoffice/excel/picture_maker.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "office/drawing/metafile.h"
#include "office/files.h"
#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/picture_file.h"
#include "office/libreoffice/excel/written_scripts.h"
#include "office/libreoffice/private_folder.h"
#include "office/libreoffice/units.h"

namespace libreoffice::excel {

namespace {

using office::PictureKind;
using office::Sharpness;
using office::drawing::Metafile;
using office::drawing::VectorPicture;

std::string onWhite(std::string svg) {
    const std::size_t content = svg.find('>', svg.find("<svg"));
    if (content == std::string::npos) return {};
    return svg.insert(content + 1, R"(<rect width="100%" height="100%" fill="white"/>)");
}

/// Whether an outline holds all of a picture of this size.
bool isWhole(const Metafile::Outline& outline, double width, double height) {
    if (outline.size() != 1 || !outline.front().isControl.empty()) return false;
    const auto& points = outline.front().points;
    double twiceTheArea = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto& [x, y] = points[i];
        if (x < 0 || y < 0 || x > width || y > height) return false;
        const auto& next = points[(i + 1) % points.size()];
        twiceTheArea += x * next.y - next.x * y;
    }
    return std::abs(twiceTheArea) == 2 * width * height;
}

/// Whether it is seen of a picture that nothing shines through, as of nearly all charts: to ask for
/// the looks of the chart takes calls.
bool beginsWithGround(const Metafile& picture) {
    if (picture.operations.empty()) return false;
    const Metafile::Operation& first = picture.operations.front();
    const auto* shape = std::get_if<Metafile::Shape>(&first.what);
    const auto& clips = picture.clips[first.clip];
    const double width = picture.width;
    const double height = picture.height;
    // The suite names the last unit inside.
    const auto isWholeClip = [&](const Metafile::Outline& clip) {
        return isWhole(clip, width, height) || isWhole(clip, width - 1, height - 1);
    };
    return shape != nullptr && std::holds_alternative<Metafile::Colour>(shape->fill) &&
           isWhole(shape->outline, width, height) &&
           std::all_of(clips.begin(), clips.end(), isWholeClip);
}

/// The suite writes pictures to files only: one in a folder that only this user can read, and gone
/// again at once.
template <class Write>
office::Picture drawnBySuite(const css::awt::Size& size, Write write) {
    const PrivateFolder folder;
    const std::string file = folder.file("copied.png");
    write(file);
    return office::finishedPicture(pointsOf(size.Width), pointsOf(size.Height),
                                   office::bytesOf(file).value_or(""));
}

}  // namespace

PictureMaker::PictureMaker(std::shared_ptr<Connection> connection,
                           std::shared_ptr<office::drawing::DrawingRoom> room)
    : suite_(connection),
      fonts_(std::move(connection)),
      room_(std::move(room)) {}

std::string PictureMaker::drawnOtherwise(const uno::Sequence<sal_Int8>& metafile) {
    return drawnOtherwise(office::drawing::readMetafile(bytesOf(metafile)));
}

std::string PictureMaker::drawnOtherwise(const Metafile& read) {
    if (!read.unknown.empty()) return read.unknown;
    for (const auto& operation : read.operations) {
        const auto* text = std::get_if<Metafile::Text>(&operation.what);
        if (text != nullptr && isIntricate(text->characters)) return "script";
    }
    const std::string font = fonts_.firstOther(read);
    return font.empty() ? font : "font " + font;
}

PictureMaker::Vectors PictureMaker::drawable(const uno::Sequence<sal_Int8>& metafile,
                                             const css::awt::Size& size, Sharpness sharpness,
                                             const std::function<bool()>& isOpaque) {
    const Metafile read = office::drawing::readMetafile(bytesOf(metafile));
    if (!drawnOtherwise(read).empty()) return std::nullopt;
    const css::awt::Size pixels = pixelsOf(size, sharpness);
    return VectorPicture{.vectors = std::string(bytesOf(metafile)),
                         .width = pixels.Width,
                         .height = pixels.Height,
                         .widthPt = pointsOf(size.Width),
                         .heightPt = pointsOf(size.Height),
                         .isTranslucent = isOpaque && !beginsWithGround(read) && !isOpaque()};
}

PictureMaker::Vectors PictureMaker::vectorsOf(const uno::Reference<css::drawing::XShape>& chart,
                                              const css::awt::Size& size, Sharpness sharpness) {
    const ChartLook look = lookOf(chart);
    return drawable(suite_.metafileOf(look.graphic), size, sharpness,
                    [&] { return isOpaque(look); });
}

office::Picture PictureMaker::chart(const uno::Reference<css::drawing::XShape>& chart,
                                    const css::awt::Size& size, Sharpness sharpness) {
    if (auto vectors = vectorsOf(chart, size, sharpness)) return room_->draw(std::move(*vectors));
    return drawnBySuite(size, [&](const std::string& file) { suite_.writeChart(chart, file); });
}

void PictureMaker::writeChart(const uno::Reference<css::drawing::XShape>& chart,
                              const std::string& path, office::PictureKind kind) {
    if (kind == PictureKind::Svg) return writePictureFile(path, suite_.svgOfChart(chart));
    if (kind == PictureKind::Emf) return writePictureFile(path, suite_.emfOfChart(chart));
    auto vectors = vectorsOf(chart, areaOf(chart), Sharpness::Crisp);
    if (!vectors) return suite_.writeChart(chart, path);
    makeWayFor(path);
    room_->drawFile(std::move(*vectors), path);
}

office::Picture PictureMaker::metafile(const uno::Sequence<sal_Int8>& metafile,
                                       const css::awt::Size& size, Sharpness sharpness) {
    if (auto vectors = drawable(metafile, size, sharpness)) return room_->draw(std::move(*vectors));
    return drawnBySuite(
        size, [&](const std::string& file) { suite_.writeMetafile(metafile, size, file); });
}

void PictureMaker::writeMetafile(const uno::Sequence<sal_Int8>& metafile,
                                 const css::awt::Size& size, const std::string& path,
                                 office::PictureKind kind) {
    if (kind == PictureKind::Svg)
        return writePictureFile(path, onWhite(suite_.svgOfMetafile(metafile, size)));
    if (kind == PictureKind::Emf)
        return writePictureFile(path, suite_.emfOfMetafile(metafile, size));
    auto vectors = drawable(metafile, size, Sharpness::Crisp);
    if (!vectors) return suite_.writeMetafile(metafile, size, path);
    makeWayFor(path);
    room_->drawFile(std::move(*vectors), path);
}

PictureMaker& pictureMaker(Desk& desk) {
    if (!desk.pictureMaker)
        desk.pictureMaker = std::make_shared<PictureMaker>(desk.connectionPtr(), desk.drawingRoom);
    return *desk.pictureMaker;
}

}  // namespace libreoffice::excel
