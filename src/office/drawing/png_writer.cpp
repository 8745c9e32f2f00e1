#include "office/drawing/png_writer.h"

#include <isa-l/crc.h>
#include <isa-l/igzip_lib.h>

#include <algorithm>
#include <array>
#include <utility>

#include "office/drawing/painting.h"

namespace office::drawing {

namespace {

constexpr std::string_view signature = "\x89PNG\r\n\x1a\n";
/// As small as the levels of other libraries that take several times as long.
constexpr std::uint32_t level = 2;
/// Also of rows: in smaller pieces the library copies them once more.
constexpr std::size_t bytesAtOnce = 256U << 10U;

/// Memory that nobody needs cleared.
struct Memory {
    explicit Memory(std::size_t wanted)
        : bytes(std::make_unique_for_overwrite<std::uint8_t[]>(wanted)),
          size(wanted) {}

    std::unique_ptr<std::uint8_t[]> bytes;
    std::size_t size;
};

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
    explicit Packer(std::size_t bytesOfRow)
        : sizeOfRow(1 + bytesOfRow),
          rows(std::max(bytesAtOnce, sizeOfRow)) {}

    isal_zstream stream{};
    Memory memory{ISAL_DEF_LVL2_DEFAULT};
    Memory packed{bytesAtOnce};
    /// With the byte before each that says how it is filtered.
    std::size_t sizeOfRow;
    Memory rows;
    std::size_t filled = 0;
};

PngWriter::PngWriter(std::int32_t width, std::int32_t height, Channels channels,
                     std::uint32_t acrossPerMetre, std::uint32_t downPerMetre)
    : packer_(std::make_unique<Packer>(static_cast<std::size_t>(std::max(width, 0)) *
                                       (channels == Channels::Rgba ? 4U : 3U))),
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
    stream.level_buf = packer_->memory.bytes.get();
    stream.level_buf_size = static_cast<std::uint32_t>(packer_->memory.size);
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

void PngWriter::packRows(bool isLast) {
    isal_zstream& stream = packer_->stream;
    Memory& packed = packer_->packed;
    stream.next_in = packer_->rows.bytes.get();
    stream.avail_in = static_cast<std::uint32_t>(std::exchange(packer_->filled, 0));
    stream.end_of_stream = isLast ? 1 : 0;
    const auto writePacked = [&] {
        writeChunk("IDAT", {reinterpret_cast<const char*>(packed.bytes.get()),
                            packed.size - stream.avail_out});
    };
    do {
        if (stream.avail_out == 0) {
            if (stream.total_out > 0) writePacked();
            stream.next_out = packed.bytes.get();
            stream.avail_out = static_cast<std::uint32_t>(packed.size);
        }
        if (isal_deflate(&stream) != COMP_OK) failToDraw("it could not be packed");
    } while (stream.avail_in > 0 || (isLast && stream.internal_state.state != ZSTATE_END));
    if (isLast) writePacked();
}

std::span<std::uint8_t> PngWriter::nextRow() {
    constexpr std::uint8_t noFilter = 0;
    if (packer_->filled + packer_->sizeOfRow > packer_->rows.size) packRows(false);
    const std::span row(packer_->rows.bytes.get() + packer_->filled, packer_->sizeOfRow);
    packer_->filled += row.size();
    row.front() = noFilter;
    return row.subspan(1);
}

std::string PngWriter::bytes() {
    packRows(true);
    writeChunk("IEND", {});
    // Many are kept at a time, and appending has doubled the room that each takes.
    file_.shrink_to_fit();
    return std::move(file_);
}

}  // namespace office::drawing
