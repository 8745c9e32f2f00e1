#include "office/drawing/png_writer.h"

#include <cstdlib>

#include "office/failure.h"

namespace office::drawing {

namespace {

/// Charts and cells are areas of one colour: without filters and at the lowest level the files are
/// hardly larger, and made in a seventh of the time.
constexpr int level = 1;

void require(int result) {
    if (result != SPNG_OK)
        throw Failure(FailureNumber::ApplicationDefined, "Picture",
                      std::string("The picture could not be made: ") + spng_strerror(result));
}

}  // namespace

PngWriter::PngWriter(std::int32_t width, std::int32_t height, Channels channels,
                     std::uint32_t acrossPerMetre, std::uint32_t downPerMetre)
    : context_(spng_ctx_new(SPNG_CTX_ENCODER)) {
    spng_ctx* context = context_.get();
    spng_ihdr head{};
    head.width = static_cast<std::uint32_t>(width);
    head.height = static_cast<std::uint32_t>(height);
    head.bit_depth = 8;
    head.color_type =
        channels == Channels::Rgba ? SPNG_COLOR_TYPE_TRUECOLOR_ALPHA : SPNG_COLOR_TYPE_TRUECOLOR;
    constexpr std::uint8_t perMetre = 1;
    spng_phys density{acrossPerMetre, downPerMetre, perMetre};
    require(spng_set_option(context, SPNG_ENCODE_TO_BUFFER, 1));
    require(spng_set_option(context, SPNG_IMG_COMPRESSION_LEVEL, level));
    require(spng_set_option(context, SPNG_FILTER_CHOICE, SPNG_FILTER_CHOICE_NONE));
    require(spng_set_ihdr(context, &head));
    require(spng_set_phys(context, &density));
    require(spng_encode_image(context, nullptr, 0, SPNG_FMT_PNG,
                              SPNG_ENCODE_PROGRESSIVE | SPNG_ENCODE_FINALIZE));
}

void PngWriter::writeRow(std::span<const std::uint8_t> row) {
    const int result = spng_encode_row(context_.get(), row.data(), row.size());
    // So it says that this was the last one.
    if (result != SPNG_EOI) require(result);
}

std::string PngWriter::bytes() {
    std::size_t size = 0;
    int result = SPNG_OK;
    const std::unique_ptr<void, decltype(&std::free)> buffer(
        spng_get_png_buffer(context_.get(), &size, &result), &std::free);
    require(result);
    return {static_cast<const char*>(buffer.get()), size};
}

}  // namespace office::drawing
