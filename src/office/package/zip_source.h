#pragma once

#include <zip.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace office::package {

/// The bytes that a ZIP file is read from: a file that stays open, or the memory of somebody else.
class ZipInput {
public:
    /// `PackageError` Unreadable.
    explicit ZipInput(const std::filesystem::path& file);
    explicit ZipInput(std::string_view bytes) : bytes_(bytes), size_(bytes.size()) {}

    [[nodiscard]] std::uint64_t size() const { return size_; }
    /// How many bytes were read, fewer at the end; -1 if that failed.
    std::int64_t read(std::uint64_t at, char* to, std::uint64_t count);

private:
    std::ifstream file_;
    std::uint64_t filePosition_ = 0;
    std::string_view bytes_;
    std::uint64_t size_ = 0;
};

/// A new file that goes again unless it is kept, or the memory of somebody else.
class ZipOutput {
public:
    /// `PackageError` Unreadable; also if there is such a file already.
    explicit ZipOutput(std::filesystem::path file);
    explicit ZipOutput(std::string& bytes) : memory_(&bytes) {}
    ZipOutput(const ZipOutput&) = delete;
    ZipOutput& operator=(const ZipOutput&) = delete;
    ~ZipOutput();

    bool write(const char* bytes, std::uint64_t count);
    bool seek(std::uint64_t to);
    [[nodiscard]] std::uint64_t position() const { return position_; }
    [[nodiscard]] std::uint64_t size() const { return size_; }
    /// Whether all has reached the file.
    bool keep();
    /// The system's number for the write that failed.
    [[nodiscard]] int error() const { return error_; }

private:
    bool noted(bool isGood);

    std::string* memory_ = nullptr;
    std::filesystem::path path_;
    std::vector<char> buffer_;
    std::ofstream file_;
    std::uint64_t position_ = 0;
    std::uint64_t size_ = 0;
    int error_ = 0;
    bool isKept_ = false;
};

/// What libzip reads and, for an archive that is written again, what it writes. Reading comes from
/// the input all the time, so that parts which don't change go from one file to the other.
class ZipSource {
public:
    /// `output` may be null. At most `readable` bytes are read until `openAll`.
    ZipSource(ZipInput& input, ZipOutput* output, std::uint64_t readable);
    ZipSource(const ZipSource&) = delete;
    ZipSource& operator=(const ZipSource&) = delete;
    ~ZipSource();

    /// Belongs to the archive that is opened from it, so it is given once.
    [[nodiscard]] zip_source_t* make(zip_error_t& error);
    void openAll() { readable_ = UINT64_MAX; }
    [[nodiscard]] bool isExhausted() const { return isExhausted_; }
    [[nodiscard]] bool beginsAsZip() const;

private:
    static zip_int64_t answer(void* self, void* data, zip_uint64_t length,
                              zip_source_cmd_t command);
    zip_int64_t read(char* to, zip_uint64_t count);
    zip_int64_t write(const char* from, zip_uint64_t count);
    zip_int64_t seek(void* to, zip_uint64_t length);
    zip_int64_t seekOutput(void* to, zip_uint64_t length);
    zip_int64_t fail(int zipCode, int systemCode);

    ZipInput& input_;
    ZipOutput* output_;
    std::uint64_t position_ = 0;
    std::uint64_t readable_;
    bool isExhausted_ = false;
    zip_error_t error_{};
};

}  // namespace office::package
