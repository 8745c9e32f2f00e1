#pragma once

#include <spng.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace office::drawing {

enum class Channels { Rgb, Rgba };

/// A PNG file in memory, written row by row.
class PngWriter {
public:
    /// In pixels, and in pixels a metre. `Failure` 1004 for a size that no PNG has.
    PngWriter(std::int32_t width, std::int32_t height, Channels channels,
              std::uint32_t acrossPerMetre, std::uint32_t downPerMetre);

    /// A byte for each channel of each pixel.
    void writeRow(std::span<const std::uint8_t> row);
    /// The file, once all rows are written.
    [[nodiscard]] std::string bytes();

private:
    struct FreeContext {
        void operator()(spng_ctx* context) const { spng_ctx_free(context); }
    };

    std::unique_ptr<spng_ctx, FreeContext> context_;
};

}  // namespace office::drawing
