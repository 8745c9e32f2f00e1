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

/// A PNG keeps its density in whole pixels a metre; without rounding, 240 points would come back
/// as 239.991.
double inPoints(std::uint32_t pixels, double pixelsPerInch) {
    return std::round(pixels / pixelsPerInch * pointsPerInch * 10) / 10;
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

}  // namespace

PictureFile readPicture(const std::string& file) {
    std::ifstream stream(std::filesystem::path(std::u8string(file.begin(), file.end())),
                         std::ios::binary);
    if (!stream) throw Failure(FailureNumber::FileNotFound, source, "There is no file " + file);
    return pictureOf({std::istreambuf_iterator<char>(stream), {}}, file);
}

PictureFile pictureOf(std::string bytes, const std::string& what) {
    PictureFile picture{
        .bytes = std::move(bytes), .ending = ".png", .contentType = "image/png", .size = {}};
    constexpr std::size_t headSize = 33;
    if (picture.bytes.size() >= headSize && picture.bytes.starts_with(signature))
        picture.size = sizeOfPng(picture.bytes);
    if (!(picture.size.width > 0 && picture.size.height > 0))
        throw Failure(FailureNumber::ApplicationDefined, source, what + " holds no PNG picture");
    return picture;
}

}  // namespace office::package
