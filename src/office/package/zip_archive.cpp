#include "office/package/zip_archive.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "office/package/part_name.h"

namespace office::package {

namespace {

/// What an entry of the directory takes with a long name, and what may stand behind the directory.
constexpr std::uint64_t directoryBytesAnEntry = 160;
constexpr std::uint64_t tailBytes = 256 << 10;
/// 1 January 1980, the first day that a ZIP file can name: equal packages are equal files.
constexpr zip_uint16_t firstDay = 1 << 5 | 1;
/// More takes much longer and saves little in markup.
constexpr zip_uint32_t deflateLevel = 6;
constexpr std::size_t blockBytes = 1 << 16;

PackageError errorOf(zip_error_t& error, std::string_view what) {
    const std::string reason = zip_error_strerror(&error);
    const int system = zip_error_code_system(&error);
    const bool isSystems = zip_error_system_type(&error) == ZIP_ET_SYS && system != 0;
    switch (zip_error_code_zip(&error)) {
        case ZIP_ER_NOZIP:
            return {Fault::NotAPackage, "it is no ZIP file"};
        case ZIP_ER_CRC:
        case ZIP_ER_INCONS:
        case ZIP_ER_INVAL:
        case ZIP_ER_EOF:
        case ZIP_ER_ZLIB:
        case ZIP_ER_COMPRESSED_DATA:
        case ZIP_ER_COMPNOTSUPP:
        case ZIP_ER_ENCRNOTSUPP:
            return {Fault::Damaged, fmt::format("{} ({})", what, reason)};
        default:
            return {Fault::Unreadable,
                    fmt::format("{} ({})", what,
                                isSystems ? std::generic_category().message(system) : reason)};
    }
}

/// What libzip reads a part from that has been put aside.
class AsideReader {
public:
    AsideReader(PartsAside& aside, const PartsAside::Place& place) : aside_(aside), place_(place) {
        zip_error_init(&error_);
    }
    AsideReader(const AsideReader&) = delete;
    AsideReader& operator=(const AsideReader&) = delete;
    ~AsideReader() { zip_error_fini(&error_); }

    static zip_int64_t answer(void* self, void* data, zip_uint64_t length,
                              zip_source_cmd_t command);

private:
    zip_int64_t read(char* to, zip_uint64_t count);

    PartsAside& aside_;
    PartsAside::Place place_;
    std::uint64_t done_ = 0;
    zip_error_t error_{};
};

zip_int64_t AsideReader::read(char* to, zip_uint64_t count) {
    count = std::min(count, place_.bytes - done_);
    if (!aside_.read(place_.start + done_, to, count)) {
        zip_error_set(&error_, ZIP_ER_READ, EIO);
        return -1;
    }
    done_ += count;
    return static_cast<zip_int64_t>(count);
}

zip_int64_t AsideReader::answer(void* self, void* data, zip_uint64_t length,
                                zip_source_cmd_t command) {
    auto* reader = static_cast<AsideReader*>(self);
    switch (command) {
        case ZIP_SOURCE_OPEN:
            reader->done_ = 0;
            return 0;
        case ZIP_SOURCE_READ:
            return reader->read(static_cast<char*>(data), length);
        case ZIP_SOURCE_STAT: {
            auto* stat = static_cast<zip_stat_t*>(data);
            zip_stat_init(stat);
            stat->size = reader->place_.bytes;
            stat->valid |= ZIP_STAT_SIZE;
            return sizeof(zip_stat_t);
        }
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&reader->error_, data, length);
        case ZIP_SOURCE_SUPPORTS:
            return ZIP_SOURCE_SUPPORTS_READABLE;
        case ZIP_SOURCE_FREE:
            delete reader;
            return 0;
        case ZIP_SOURCE_CLOSE:
            return 0;
        default:
            zip_error_set(&reader->error_, ZIP_ER_OPNOTSUPP, 0);
            return -1;
    }
}

}  // namespace

ZipArchive::ZipArchive(ZipInput& input, const Limits& limits)
    : input_(input),
      limits_(limits),
      source_(std::make_unique<ZipSource>(input, nullptr,
                                          limits.parts * directoryBytesAnEntry + tailBytes)) {
    archive_ = open(*source_);
    source_->openAll();
    const auto count = static_cast<std::uint64_t>(zip_get_num_entries(archive_.get(), 0));
    if (count > limits.parts)
        throw PackageError(Fault::TooLarge, fmt::format("it holds {} parts", count));

    std::uint64_t left = input.size();
    for (std::uint64_t index = 0; index < count; ++index) {
        zip_stat_t stat;
        zip_stat_init(&stat);
        const char* name = zip_get_name(archive_.get(), index, ZIP_FL_ENC_RAW);
        if (name == nullptr || zip_stat_index(archive_.get(), index, 0, &stat) != 0)
            throw errorOf(*zip_get_error(archive_.get()), "its directory can't be read");
        // Entries that share their bytes would make a small file a large one when they are copied.
        if (stat.comp_size > left)
            throw PackageError(Fault::Damaged, "its parts take more room than it has");
        left -= stat.comp_size;
        entries_.push_back({name, stat.size, stat.encryption_method != ZIP_EM_NONE});
    }
}

ZipArchive::Handle ZipArchive::open(ZipSource& source) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* made = source.make(error);
    zip_t* archive = made != nullptr ? zip_open_from_source(made, 0, &error) : nullptr;
    if (archive != nullptr) return Handle(archive);
    zip_source_free(made);
    const PackageError problem = errorOf(error, "it is a damaged ZIP file");
    zip_error_fini(&error);
    if (source.isExhausted()) throw PackageError(Fault::TooLarge, "its directory is too large");
    if (problem.fault() == Fault::NotAPackage && source.beginsAsZip())
        throw PackageError(Fault::Damaged, "it is a ZIP file without an end");
    throw problem;
}

std::string ZipArchive::read(std::uint64_t index) const {
    return read(index, UINT64_MAX);
}

std::string ZipArchive::read(std::uint64_t index, std::uint64_t most) const {
    const ZipEntry& entry = entries_[index];
    const std::string what = fmt::format("its part {} can't be read", shown("/" + entry.name));
    const auto close = [](zip_file_t* file) { zip_fclose(file); };
    const std::unique_ptr<zip_file_t, decltype(close)> file(
        zip_fopen_index(archive_.get(), index, 0), close);
    if (file == nullptr) throw errorOf(*zip_get_error(archive_.get()), what);

    // Grows with what comes, since the size is only a claim.
    std::string bytes;
    while (true) {
        const std::size_t before = bytes.size();
        bytes.resize(before + blockBytes);
        const auto got = zip_fread(file.get(), bytes.data() + before, blockBytes);
        if (got < 0) throw errorOf(*zip_file_get_error(file.get()), what);
        bytes.resize(before + static_cast<std::size_t>(got));
        if (bytes.size() > entry.bytes || (got == 0 && bytes.size() < entry.bytes))
            throw PackageError(Fault::Damaged, what + " (its size is another than the file says)");
        if (bytes.size() >= most) bytes.resize(most);
        if (got == 0 || bytes.size() == most) return bytes;
    }
}

void ZipArchive::copy(ZipOutput& output) const {
    std::array<char, blockBytes> block{};
    for (std::uint64_t at = 0; at < input_.size();) {
        const auto got = input_.read(at, block.data(), block.size());
        if (got <= 0) throw PackageError(Fault::Unreadable, "it can't be read to its end");
        if (!output.write(block.data(), static_cast<std::uint64_t>(got))) break;
        at += static_cast<std::uint64_t>(got);
    }
    if (output.error() != 0 || !output.keep())
        throw PackageError(Fault::Unreadable,
                           fmt::format("it can't be written ({})",
                                       std::generic_category().message(output.error())));
}

zip_source_t* ZipArchive::sourceOf(zip_t* archive, const ZipChange& change, PartsAside& aside) {
    if (!change.aside)
        return zip_source_buffer(archive, change.bytes->data(), change.bytes->size(), 0);
    auto reader = std::make_unique<AsideReader>(aside, *change.aside);
    zip_source_t* source = zip_source_function(archive, &AsideReader::answer, reader.get());
    // It goes with the source.
    if (source != nullptr) static_cast<void>(reader.release());
    return source;
}

void ZipArchive::write(ZipOutput& output, const std::vector<ZipChange>& changes,
                       PartsAside& aside) const {
    // libzip writes nothing at all if nothing has changed.
    if (changes.empty()) {
        copy(output);
        return;
    }
    ZipSource source(input_, &output, UINT64_MAX);
    Handle archive = open(source);
    const auto check = [&](bool isGood) {
        if (!isGood) throw errorOf(*zip_get_error(archive.get()), "it can't be written");
    };
    for (const ZipChange& change : changes) {
        if (!change.bytes && !change.aside) {
            check(zip_delete(archive.get(), *change.index) == 0);
            continue;
        }
        zip_source_t* bytes = sourceOf(archive.get(), change, aside);
        check(bytes != nullptr);
        zip_int64_t index = -1;
        if (!change.index) {
            index = zip_file_add(archive.get(), change.name.c_str(), bytes, 0);
        } else if (zip_file_replace(archive.get(), *change.index, bytes, 0) == 0) {
            index = static_cast<zip_int64_t>(*change.index);
        }
        if (index < 0) zip_source_free(bytes);
        check(index >= 0);
        const auto at = static_cast<zip_uint64_t>(index);
        const bool isDeflated = change.storage == Storage::Deflated;
        check(zip_set_file_compression(archive.get(), at,
                                       isDeflated ? ZIP_CM_DEFLATE : ZIP_CM_STORE,
                                       isDeflated ? deflateLevel : 0) == 0);
        check(zip_file_set_dostime(archive.get(), at, 0, firstDay, 0) == 0);
    }
    check(zip_close(archive.get()) == 0);
    // It has gone by closing.
    static_cast<void>(archive.release());
}

}  // namespace office::package
