#include "office/drawing/png_writer.h"

#include <isa-l/crc.h>
#include <isa-l/igzip_lib.h>

#include <array>
#include <utility>
#include <vector>

#include "office/drawing/painting.h"

namespace office::drawing {

namespace {

constexpr std::string_view signature = "\x89PNG\r\n\x1a\n";
/// As small as the levels of other libraries that take several times as long.
constexpr std::uint32_t level = 2;
constexpr std::size_t packedAtOnce = 256U << 10U;

std::string bigEndian(std::uint32_t number) {
    constexpr std::array shifts = {24U, 16U, 8U, 0U};
    std::string bytes;
    for (const unsigned shift : shifts) bytes += static_cast<char>(number >> shift & 0xFFU);
    return bytes;
}

const std::uint8_t* dataOf(std::string_view bytes) {
    return reinterpret_cast<const std::uint8_t*>(bytes.data());
}

}  // namespace

struct PngWriter::Packer {
    isal_zstream stream{};
    std::vector<std::uint8_t> memory = std::vector<std::uint8_t>(ISAL_DEF_LVL2_DEFAULT);
    std::string packed = std::string(packedAtOnce, '\0');
};

PngWriter::PngWriter(std::int32_t width, std::int32_t height, Channels channels,
                     std::uint32_t acrossPerMetre, std::uint32_t downPerMetre)
    : packer_(std::make_unique<Packer>()),
      file_(signature) {
    if (width <= 0 || height <= 0) failToDraw("it is empty");
    constexpr char bitsOfChannel = 8;
    constexpr char rgb = 2;
    constexpr char rgba = 6;
    constexpr char perMetre = 1;
    std::string head = bigEndian(static_cast<std::uint32_t>(width)) +
                       bigEndian(static_cast<std::uint32_t>(height));
    head += {bitsOfChannel, channels == Channels::Rgba ? rgba : rgb, 0, 0, 0};
    writeChunk("IHDR", head);
    writeChunk("pHYs", bigEndian(acrossPerMetre) + bigEndian(downPerMetre) + perMetre);

    isal_zstream& stream = packer_->stream;
    isal_deflate_init(&stream);
    stream.level = level;
    stream.level_buf = packer_->memory.data();
    stream.level_buf_size = static_cast<std::uint32_t>(packer_->memory.size());
    stream.gzip_flag = IGZIP_ZLIB;
}

PngWriter::~PngWriter() = default;

void PngWriter::writeChunk(std::string_view kind, std::string_view content) {
    const std::uint32_t sum = crc32_gzip_refl(0, dataOf(kind), kind.size());
    file_ += bigEndian(static_cast<std::uint32_t>(content.size()));
    file_ += kind;
    file_ += content;
    file_ += bigEndian(crc32_gzip_refl(sum, dataOf(content), content.size()));
}

void PngWriter::pack(std::span<const std::uint8_t> bytes, bool isLast) {
    isal_zstream& stream = packer_->stream;
    // It is only read, though the library doesn't say so.
    stream.next_in = const_cast<std::uint8_t*>(bytes.data());
    stream.avail_in = static_cast<std::uint32_t>(bytes.size());
    stream.end_of_stream = isLast ? 1 : 0;
    do {
        if (stream.avail_out == 0) {
            if (stream.total_out > 0) writeChunk("IDAT", packer_->packed);
            stream.next_out = reinterpret_cast<std::uint8_t*>(packer_->packed.data());
            stream.avail_out = static_cast<std::uint32_t>(packer_->packed.size());
        }
        if (isal_deflate(&stream) != COMP_OK) failToDraw("it could not be packed");
    } while (stream.avail_in > 0 || (isLast && stream.internal_state.state != ZSTATE_END));
}

void PngWriter::writeRow(std::span<const std::uint8_t> row) {
    constexpr std::array<std::uint8_t, 1> noFilter = {0};
    pack(noFilter, false);
    pack(row, false);
}

std::string PngWriter::bytes() {
    pack({}, true);
    writeChunk(
        "IDAT",
        std::string_view(packer_->packed).substr(0, packedAtOnce - packer_->stream.avail_out));
    writeChunk("IEND", {});
    return std::move(file_);
}

}  // namespace office::drawing
