#include "office/package/drawing/picture_file.h"

#include <fmt/format.h>

#include <cmath>
#include <cstdint>
#include <string_view>
#include <utility>

#include "office/failure.h"
#include "office/files.h"
#include "office/units.h"

namespace office::package {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view signature = "\x89PNG\r\n\x1a\n"sv;
constexpr const char* source = "Shapes.AddPicture";

std::uint32_t numberAt(std::string_view bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (const char byte : bytes.substr(at, 4))
        number = number << 8 | static_cast<std::uint8_t>(byte);
    return number;
}

double rounded(double points) {
    return std::round(points * 10) / 10;
}

/// A PNG keeps its density in whole pixels a metre; without rounding, 240 points would come back
/// as 239.991.
double inPoints(std::uint32_t pixels, double perInch) {
    return rounded(pixels / perInch * pointsPerInch);
}

/// A file of chunks: length, name, content, checksum. The first one says the size in pixels.
Size sizeOfPng(std::string_view bytes) {
    constexpr std::size_t firstChunk = 8;
    constexpr std::size_t chunkFrame = 12;
    double horizontal = pixelsPerInch;
    double vertical = pixelsPerInch;
    for (std::size_t at = firstChunk; at + chunkFrame < bytes.size();
         at += numberAt(bytes, at) + chunkFrame) {
        const std::string_view content = bytes.substr(at + 8);
        if (bytes.substr(at + 4, 4) == "IDAT") break;
        // Pixels a metre across and down; the 1 says that it is metres.
        if (bytes.substr(at + 4, 4) != "pHYs" || content.size() < 9 || content[8] != 1) continue;
        if (numberAt(content, 0) == 0 || numberAt(content, 4) == 0) continue;
        horizontal = numberAt(content, 0) / inchesPerMetre;
        vertical = numberAt(content, 4) / inchesPerMetre;
    }
    return {inPoints(numberAt(bytes, firstChunk + 8), horizontal),
            inPoints(numberAt(bytes, firstChunk + 12), vertical)};
}

PictureFile pngFile(Picture picture, const Size& size) {
    return {std::move(picture.png), {}, std::move(picture.look), ".png", "image/png", size};
}

PictureFile pngFile(Picture picture) {
    const Size size{rounded(picture.widthPt), rounded(picture.heightPt)};
    return pngFile(std::move(picture), size);
}

/// An EMF as it is; an SVG with a picture for programs that don't read it.
PictureFile vectorPicture(VectorFile vectors, PictureFiles* pictures) {
    const Size size{vectors.widthPt, vectors.heightPt};
    if (vectors.kind == PictureKind::Emf) {
        Picture emf = finishedPicture(size.width, size.height, std::move(vectors.bytes));
        return {std::move(emf.png), {}, {}, ".emf", "image/x-emf", size};
    }
    if (pictures == nullptr) refuse(source, "No SVG can be drawn here");
    PictureFile picture = pngFile(pictures->draw(vectors), size);
    picture.svg = std::move(vectors.bytes);
    return picture;
}

}  // namespace

PictureFile readPicture(const std::string& file, PictureFiles* pictures) {
    if (pictures != nullptr) {
        if (auto picture = pictures->take(file)) return pngFile(std::move(*picture));
    }
    auto bytes = bytesOf(pathOf(file));
    if (!bytes) throw Failure(FailureNumber::FileNotFound, source, "There is no file " + file);
    if (looksLikeVectors(*bytes))
        return vectorPicture(vectorFileOf(std::move(*bytes), file), pictures);
    constexpr std::size_t headSize = 33;
    Size size;
    if (bytes->size() >= headSize && bytes->starts_with(signature)) size = sizeOfPng(*bytes);
    if (!(size.width > 0 && size.height > 0)) refuse(source, file + " holds no PNG picture");
    return pngFile(finishedPicture(size.width, size.height, std::move(*bytes)), size);
}

PictureFile pictureOf(const Copied& copied) {
    return pngFile(copied.picture(Sharpness::Crisp));
}

std::string addPicturePart(Package& package, std::string_view stem, PictureFile picture) {
    if (picture.look.empty()) {
        const Storage storage = picture.ending == ".png" ? Storage::Stored : Storage::Deflated;
        return package.addMedia(stem, picture.ending, picture.contentType, picture.bytes.get(),
                                storage);
    }
    return package.addMedia(stem, picture.ending, picture.contentType, std::move(picture.bytes),
                            picture.look);
}

std::string addBlip(Package& package, const std::string& owner, const std::string& stem,
                    PictureFile picture) {
    Relationships& relationships = package.relationshipsOf(owner);
    std::string svg = std::move(picture.svg);
    const std::string image =
        relationships.add("image", addPicturePart(package, stem, std::move(picture)));
    if (svg.empty()) return fmt::format(R"(<a:blip r:embed="{}"/>)", image);
    const std::string vectors = relationships.add(
        "image",
        package.addMedia(stem, ".svg", "image/svg+xml", std::move(svg), Storage::Deflated));
    return fmt::format(
        R"(<a:blip r:embed="{}"><a:extLst><a:ext uri="{{96DAC541-7B7A-43D3-8B79-37D633B846F1}}">)"
        R"(<asvg:svgBlip xmlns:asvg="http://schemas.microsoft.com/office/drawing/2016/SVG/main" )"
        R"(r:embed="{}"/></a:ext></a:extLst></a:blip>)",
        image, vectors);
}

}  // namespace office::package
