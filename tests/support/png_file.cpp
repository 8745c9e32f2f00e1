#include "support/png_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

namespace support {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::array<std::uint8_t, 8> signature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr double metresPerInch = 0.0254;
constexpr double pointsPerInch = 72;

void appendBig(Bytes& bytes, std::uint32_t number) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    }
}

std::uint32_t readBig(const Bytes& bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) number = (number << 8U) | bytes.at(at + i);
    return number;
}

std::uint32_t crc(const Bytes& bytes, std::size_t from) {
    static const auto table = [] {
        std::array<std::uint32_t, 256> made{};
        for (std::uint32_t n = 0; n < made.size(); ++n) {
            std::uint32_t c = n;
            for (int bit = 0; bit < 8; ++bit) c = (c & 1U) != 0 ? 0xEDB88320U ^ (c >> 1U) : c >> 1U;
            made[n] = c;
        }
        return made;
    }();
    std::uint32_t c = 0xFFFFFFFFU;
    for (std::size_t i = from; i < bytes.size(); ++i) {
        c = table[(c ^ bytes[i]) & 0xFFU] ^ (c >> 8U);
    }
    return c ^ 0xFFFFFFFFU;
}

void appendChunk(Bytes& png, std::string_view type, const Bytes& data) {
    appendBig(png, static_cast<std::uint32_t>(data.size()));
    const std::size_t from = png.size();
    png.insert(png.end(), type.begin(), type.end());
    png.insert(png.end(), data.begin(), data.end());
    appendBig(png, crc(png, from));
}

/// A zlib stream of stored blocks: no compression, so no library.
Bytes stored(const Bytes& raw) {
    Bytes stream = {0x78, 0x01};
    constexpr std::size_t most = 65535;
    for (std::size_t at = 0; at < raw.size(); at += most) {
        const std::size_t length = std::min(most, raw.size() - at);
        stream.push_back(at + length == raw.size() ? 1 : 0);
        const std::array<std::size_t, 2> sizes = {length, ~length};
        for (const std::size_t size : sizes) {
            stream.push_back(static_cast<std::uint8_t>(size));
            stream.push_back(static_cast<std::uint8_t>(size >> 8U));
        }
        const auto begin = raw.begin() + static_cast<std::ptrdiff_t>(at);
        stream.insert(stream.end(), begin, begin + static_cast<std::ptrdiff_t>(length));
    }
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const std::uint8_t byte : raw) {
        a = (a + byte) % 65521U;
        b = (b + a) % 65521U;
    }
    appendBig(stream, (b << 16U) | a);
    return stream;
}

/// Rows of one bit a pixel, each behind a filter byte.
Bytes framedRows(const PngSize& size) {
    Bytes rows;
    const std::size_t rowBytes = (size.widthPx + 7U) / 8U;
    for (std::uint32_t y = 0; y < size.heightPx; ++y) {
        const bool edge = y == 0 || y + 1 == size.heightPx;
        Bytes row(rowBytes + 1, edge ? 0 : 0xFF);
        row.front() = 0;
        if (rowBytes > 0) row[1 + y % rowBytes] = 0;
        rows.insert(rows.end(), row.begin(), row.end());
    }
    return rows;
}

}  // namespace

double PngSize::dotsPerInch() const {
    return pixelsPerMetre == 0 ? 96.0 : pixelsPerMetre * metresPerInch;
}

double PngSize::points(std::uint32_t pixels) const {
    return pixels / dotsPerInch() * pointsPerInch;
}

Bytes pngPicture(const PngSize& size) {
    Bytes png(signature.begin(), signature.end());
    Bytes header;
    appendBig(header, size.widthPx);
    appendBig(header, size.heightPx);
    header.insert(header.end(), {1, 0, 0, 0, 0});  // one bit a pixel, greyscale
    appendChunk(png, "IHDR", header);
    if (size.pixelsPerMetre != 0) {
        Bytes density;
        appendBig(density, size.pixelsPerMetre);
        appendBig(density, size.pixelsPerMetre);
        density.push_back(1);  // the unit is the metre
        appendChunk(png, "pHYs", density);
    }
    appendChunk(png, "IDAT", stored(framedRows(size)));
    appendChunk(png, "IEND", {});
    return png;
}

Bytes pngPictureOfPoints(double width, double height) {
    constexpr double dotsPerInch = 288;
    const auto pixels = [&](double points) {
        return static_cast<std::uint32_t>(
            std::max(1.0, std::round(points / pointsPerInch * dotsPerInch)));
    };
    return pngPicture({pixels(width), pixels(height),
                       static_cast<std::uint32_t>(std::round(dotsPerInch / metresPerInch))});
}

PngSize pngSizeOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const Bytes bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (bytes.size() < 33 || !std::equal(signature.begin(), signature.end(), bytes.begin())) {
        throw std::runtime_error("There is no PNG file at " + path);
    }
    PngSize size{readBig(bytes, 16), readBig(bytes, 20), 0};
    std::size_t at = signature.size();
    while (at + 12 <= bytes.size()) {
        const std::string type(bytes.begin() + static_cast<std::ptrdiff_t>(at) + 4,
                               bytes.begin() + static_cast<std::ptrdiff_t>(at) + 8);
        if (type == "pHYs") size.pixelsPerMetre = readBig(bytes, at + 8);
        if (type == "IDAT") break;
        at += 12U + readBig(bytes, at);
    }
    return size;
}

void writeBytes(const std::string& path, const Bytes& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    std::copy(bytes.begin(), bytes.end(), std::ostreambuf_iterator<char>(file));
    if (!file.flush()) throw std::runtime_error("Can't write " + path);
}

}  // namespace support
