#include "office/libreoffice/excel/picture_file.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "office/failure.h"

namespace libreoffice::excel {

namespace {

using namespace std::string_view_literals;

constexpr auto beginOfPng = "\x89PNG\r\n\x1a\n"sv;
constexpr auto endOfPng = "\0\0\0\0IEND\xae\x42\x60\x82"sv;

[[noreturn]] void failToWrite(const std::string& path) {
    office::refuse("Chart.Export", fmt::format("The picture could not be written to \"{}\"", path));
}

/// Leaves no half of a picture.
[[noreturn]] void failWithout(const std::string& path) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    failToWrite(path);
}

}  // namespace

void makeWayFor(const std::string& path) {
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) failToWrite(path);
    // LibreOffice would make the folders of the path.
    const auto folder = std::filesystem::absolute(path, error).parent_path();
    if (!std::filesystem::is_directory(folder, error)) failToWrite(path);
    std::filesystem::remove(path, error);
    if (error) failToWrite(path);
}

void writePictureFile(const std::string& path, const std::string& bytes) {
    makeWayFor(path);
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    file.close();
    if (!file || bytes.empty()) failWithout(path);
}

void requirePngFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string begin(beginOfPng.size(), '\0');
    std::string end(endOfPng.size(), '\0');
    file.read(begin.data(), static_cast<std::streamsize>(begin.size()));
    file.seekg(-static_cast<std::streamoff>(end.size()), std::ios::end);
    file.read(end.data(), static_cast<std::streamsize>(end.size()));
    if (!file || begin != beginOfPng || end != endOfPng) failWithout(path);
}

}  // namespace libreoffice::excel
