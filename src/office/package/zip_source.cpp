#include "office/package/zip_source.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "office/package/package.h"

namespace office::package {

namespace {

[[noreturn]] void failWith(std::string_view what, int systemCode) {
    throw PackageError(Fault::Unreadable,
                       fmt::format("{} ({})", what, std::generic_category().message(systemCode)));
}

}  // namespace

ZipInput::ZipInput(const std::filesystem::path& file) {
    std::error_code problem;
    const auto kind = std::filesystem::status(file, problem).type();
    if (kind == std::filesystem::file_type::not_found) failWith("it can't be read", ENOENT);
    if (problem) failWith("it can't be read", problem.value());
    if (kind != std::filesystem::file_type::regular)
        throw PackageError(Fault::Unreadable, "it is no file");
    errno = 0;
    file_.open(file, std::ios::binary);
    if (!file_) failWith("it can't be read", errno);
    file_.seekg(0, std::ios::end);
    size_ = filePosition_ = static_cast<std::uint64_t>(file_.tellg());
}

std::int64_t ZipInput::read(std::uint64_t at, char* to, std::uint64_t count) {
    if (at >= size_) return 0;
    count = std::min(count, size_ - at);
    if (!file_.is_open()) {
        bytes_.copy(to, count, at);
        return static_cast<std::int64_t>(count);
    }
    file_.clear();
    // Going to where it is already would throw the buffer away.
    if (at != filePosition_) file_.seekg(static_cast<std::streamoff>(at));
    file_.read(to, static_cast<std::streamsize>(count));
    filePosition_ = at + static_cast<std::uint64_t>(file_.gcount());
    return file_.bad() ? -1 : file_.gcount();
}

ZipOutput::ZipOutput(std::filesystem::path file) : path_(std::move(file)), buffer_(1 << 18) {
    std::error_code problem;
    if (std::filesystem::exists(std::filesystem::symlink_status(path_, problem)))
        failWith("it can't be written", EEXIST);
    file_.rdbuf()->pubsetbuf(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    errno = 0;
    file_.open(path_, std::ios::binary | std::ios::trunc);
    if (!file_) failWith("it can't be written", errno);
}

ZipOutput::~ZipOutput() {
    if (isKept_ || memory_ != nullptr) return;
    file_.close();
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

bool ZipOutput::write(const char* bytes, std::uint64_t count) {
    errno = 0;
    if (memory_ != nullptr) {
        memory_->resize(std::max<std::size_t>(memory_->size(), position_ + count));
        memory_->replace(position_, count, bytes, count);
    }
    const bool isGood =
        memory_ != nullptr || noted(!!file_.write(bytes, static_cast<std::streamsize>(count)));
    if (isGood) position_ += count;
    size_ = std::max(size_, position_);
    return isGood;
}

bool ZipOutput::seek(std::uint64_t to) {
    errno = 0;
    position_ = to;
    return memory_ != nullptr || noted(!!file_.seekp(static_cast<std::streamoff>(to)));
}

bool ZipOutput::keep() {
    errno = 0;
    if (memory_ != nullptr) return true;
    file_.close();
    isKept_ = noted(!file_.fail());
    return isKept_;
}

bool ZipOutput::noted(bool isGood) {
    if (!isGood && error_ == 0) error_ = errno != 0 ? errno : EIO;
    return isGood;
}

ZipSource::ZipSource(ZipInput& input, ZipOutput* output, std::uint64_t readable)
    : input_(input),
      output_(output),
      readable_(readable) {
    zip_error_init(&error_);
}

ZipSource::~ZipSource() {
    zip_error_fini(&error_);
}

zip_source_t* ZipSource::make(zip_error_t& error) {
    return zip_source_function_create(&ZipSource::answer, this, &error);
}

bool ZipSource::beginsAsZip() const {
    std::array<char, 4> magic{};
    return input_.read(0, magic.data(), magic.size()) == 4 &&
           std::string_view(magic.data(), magic.size()) == "PK\x03\x04";
}

zip_int64_t ZipSource::fail(int zipCode, int systemCode) {
    zip_error_set(&error_, zipCode, systemCode);
    return -1;
}

zip_int64_t ZipSource::read(char* to, zip_uint64_t count) {
    if (count > readable_) {
        isExhausted_ = true;
        return fail(ZIP_ER_READ, EFBIG);
    }
    const auto got = input_.read(position_, to, count);
    if (got < 0) return fail(ZIP_ER_READ, EIO);
    position_ += static_cast<std::uint64_t>(got);
    if (readable_ != UINT64_MAX) readable_ -= static_cast<std::uint64_t>(got);
    return got;
}

zip_int64_t ZipSource::write(const char* from, zip_uint64_t count) {
    if (!output_->write(from, count)) return fail(ZIP_ER_WRITE, output_->error());
    return static_cast<zip_int64_t>(count);
}

zip_int64_t ZipSource::seek(void* to, zip_uint64_t length) {
    const auto place =
        zip_source_seek_compute_offset(position_, input_.size(), to, length, &error_);
    if (place < 0) return -1;
    position_ = static_cast<std::uint64_t>(place);
    return 0;
}

zip_int64_t ZipSource::seekOutput(void* to, zip_uint64_t length) {
    const auto place =
        zip_source_seek_compute_offset(output_->position(), output_->size(), to, length, &error_);
    if (place < 0) return -1;
    if (!output_->seek(static_cast<std::uint64_t>(place)))
        return fail(ZIP_ER_SEEK, output_->error());
    return 0;
}

zip_int64_t ZipSource::answer(void* self, void* data, zip_uint64_t length,
                              zip_source_cmd_t command) {
    auto& source = *static_cast<ZipSource*>(self);
    switch (command) {
        case ZIP_SOURCE_OPEN:
            source.position_ = 0;
            return 0;
        case ZIP_SOURCE_READ:
            return source.read(static_cast<char*>(data), length);
        case ZIP_SOURCE_SEEK:
            return source.seek(data, length);
        case ZIP_SOURCE_TELL:
            return static_cast<zip_int64_t>(source.position_);
        case ZIP_SOURCE_STAT: {
            auto* stat = static_cast<zip_stat_t*>(data);
            zip_stat_init(stat);
            stat->size = source.input_.size();
            stat->valid |= ZIP_STAT_SIZE;
            return sizeof(zip_stat_t);
        }
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&source.error_, data, length);
        case ZIP_SOURCE_SUPPORTS:
            return source.output_ != nullptr ? ZIP_SOURCE_SUPPORTS_WRITABLE
                                             : ZIP_SOURCE_SUPPORTS_SEEKABLE;
        case ZIP_SOURCE_WRITE:
            return source.write(static_cast<const char*>(data), length);
        case ZIP_SOURCE_SEEK_WRITE:
            return source.seekOutput(data, length);
        case ZIP_SOURCE_TELL_WRITE:
            return static_cast<zip_int64_t>(source.output_->position());
        case ZIP_SOURCE_COMMIT_WRITE:
            return source.output_->keep() ? 0 : source.fail(ZIP_ER_CLOSE, source.output_->error());
        case ZIP_SOURCE_CLOSE:
        case ZIP_SOURCE_FREE:
        // The output stands ready from the beginning, and goes by itself.
        case ZIP_SOURCE_BEGIN_WRITE:
        case ZIP_SOURCE_ROLLBACK_WRITE:
        case ZIP_SOURCE_REMOVE:
            return 0;
        default:
            return source.fail(ZIP_ER_OPNOTSUPP, 0);
    }
}

}  // namespace office::package
