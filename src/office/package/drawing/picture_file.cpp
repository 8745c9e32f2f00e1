#include "office/package/drawing/picture_file.h"

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <utility>

#include "office/failure.h"

namespace office::package {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view signature = "\x89PNG\r\n\x1a\n"sv;
constexpr const char* source = "Shapes.AddPicture";
constexpr double pointsPerInch = 72;
constexpr double plainPixelsPerInch = 96;
constexpr double inchesPerMetre = 1 / 0.0254;

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
double inPoints(std::uint32_t pixels, double pixelsPerInch) {
    return rounded(pixels / pixelsPerInch * pointsPerInch);
}

/// A file of chunks: length, name, content, checksum. The first one says the size in pixels.
office::model::powerpoint::Size sizeOfPng(std::string_view bytes) {
    constexpr std::size_t firstChunk = 8;
    constexpr std::size_t chunkFrame = 12;
    double horizontal = plainPixelsPerInch;
    double vertical = plainPixelsPerInch;
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

PictureFile pngFile(Picture picture, const office::model::powerpoint::Size& size) {
    return {std::move(picture.png), std::move(picture.look), ".png", "image/png", size};
}

PictureFile pngFile(Picture picture) {
    const office::model::powerpoint::Size size{rounded(picture.widthPt), rounded(picture.heightPt)};
    return pngFile(std::move(picture), size);
}

}  // namespace

PictureFile readPicture(const std::string& file, PictureFiles* onTheirWay) {
    if (onTheirWay != nullptr) {
        if (auto picture = onTheirWay->take(file)) return pngFile(std::move(*picture));
    }
    std::ifstream stream(std::filesystem::path(std::u8string(file.begin(), file.end())),
                         std::ios::binary);
    if (!stream) throw Failure(FailureNumber::FileNotFound, source, "There is no file " + file);
    std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    constexpr std::size_t headSize = 33;
    office::model::powerpoint::Size size;
    if (bytes.size() >= headSize && bytes.starts_with(signature)) size = sizeOfPng(bytes);
    if (!(size.width > 0 && size.height > 0))
        throw Failure(FailureNumber::ApplicationDefined, source, file + " holds no PNG picture");
    return pngFile(finishedPicture(size.width, size.height, std::move(bytes)), size);
}

PictureFile pictureOf(const Copied& copied) {
    return pngFile(copied.picture());
}

std::string addPicturePart(Package& package, std::string_view stem, PictureFile picture) {
    if (picture.look.empty())
        return package.addMedia(stem, picture.ending, picture.contentType, picture.bytes.get());
    return package.addMedia(stem, picture.ending, picture.contentType, std::move(picture.bytes),
                            picture.look);
}

}  // namespace office::package
