#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace office::drawing {

enum class Channels { Rgb, Rgba };

/// A PNG file in memory, written row by row.
///
/// Rows are packed as they are, without a filter: what charts and cells are drawn with repeats
/// itself, and the filters of a PNG would take longer than the packing.
class PngWriter {
public:
    /// In pixels, and in pixels a metre. `Failure` 1004 for a size that no PNG has.
    PngWriter(std::int32_t width, std::int32_t height, Channels channels,
              std::uint32_t acrossPerMetre, std::uint32_t downPerMetre);
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;
    ~PngWriter();

    /// Where the next row is to be written, a byte for each channel of each pixel, before anything
    /// else is asked for.
    [[nodiscard]] std::span<std::uint8_t> nextRow();
    /// The file, once all rows are written.
    [[nodiscard]] std::string bytes();

private:
    struct Packer;

    void writeChunk(std::string_view kind, std::string_view content);
    void packRows(bool isLast);

    std::unique_ptr<Packer> packer_;
    std::string file_;
};

}  // namespace office::drawing
