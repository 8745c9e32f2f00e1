#include "office/libreoffice/excel/png_file.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "office/failure.h"

namespace libreoffice::excel {

namespace {

constexpr std::string_view signature = "\x89PNG\r\n\x1a\n";

[[noreturn]] void failToWrite(const std::string& path) {
    throw office::Failure(office::FailureNumber::ApplicationDefined, "Chart.Export",
                          fmt::format("The picture could not be written to \"{}\"", path));
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
    if (file && !bytes.empty()) return;
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    failToWrite(path);
}

void requirePngFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string begin(signature.size(), '\0');
    file.read(begin.data(), static_cast<std::streamsize>(begin.size()));
    if (!file || begin != signature) failToWrite(path);
}

}  // namespace libreoffice::excel
