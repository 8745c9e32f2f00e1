#include "office/model/excel/published_page.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <system_error>

#include "office/failure.h"
#include "office/text.h"

namespace office::model::excel {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view publishing = "PublishObject.Publish";

/// Lengths of what comes from the workbook are written where it stands. Grounds are printed too:
/// they are part of a table's looks.
constexpr std::string_view styleSheet = R"(
body { margin: 24px; background: #fff; color: #000; font-family: sans-serif;
  -webkit-print-color-adjust: exact; print-color-adjust: exact; }
h2 { margin: 12px 0; font-size: 20px; text-align: center; }
.item { position: relative; margin: 0 auto; break-inside: avoid; }
.item table { border-collapse: collapse; table-layout: fixed; }
.item td { padding: 0 1px; vertical-align: bottom; line-height: 1.2; white-space: pre; text-align: left; }
.item td, .item td div { unicode-bidi: plaintext; }
.item td.wraps { white-space: pre-wrap; overflow-wrap: break-word; }
.item td div { display: inline-block; vertical-align: bottom; overflow: hidden; writing-mode: vertical-rl; }
.item td div.upwards { transform: rotate(180deg); }
.item > img { display: block; }
.charts { position: absolute; inset: 0; overflow: hidden; pointer-events: none; }
.charts img { position: absolute; }
)";

constexpr std::string_view end = "</body>\n</html>\n";

[[noreturn]] void failToWrite(const fs::path& path, int error) {
    throw Failure(FailureNumber::PathFileAccess, std::string(publishing),
                  fmt::format("{} can't be written: {}", path.string(), std::strerror(error)));
}

/// Where the body ends, in bytes from the start of the file.
std::streamoff endOfBody(std::fstream& file, const fs::path& path) {
    constexpr std::streamoff farthest = 4096;
    file.seekg(0, std::ios::end);
    const std::streamoff size = file.tellg();
    const std::streamoff from = std::max<std::streamoff>(0, size - farthest);
    file.seekg(from);
    const std::string tail{std::istreambuf_iterator<char>(file), {}};
    file.clear();
    const std::size_t found = lowerCase(tail).rfind("</body>");
    if (found == std::string::npos) {
        refuse(std::string(publishing),
               fmt::format("{} is no page that anything can be added to", path.string()));
    }
    return from + static_cast<std::streamoff>(found);
}

void writeNew(const fs::path& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (file) return;
    const int reason = errno;
    std::error_code ignored;
    if (fs::is_regular_file(path, ignored)) fs::remove(path, ignored);
    failToWrite(path, reason);
}

}  // namespace

PublishedPage::PublishedPage(std::string_view file, int& lastPicture)
    : file_(file),
      lastPicture_(lastPicture) {}

bool PublishedPage::exists() const {
    std::error_code ignored;
    return fs::exists(file_, ignored);
}

void PublishedPage::begin(std::string_view title) const {
    writeNew(file_, fmt::format("<!DOCTYPE html>\n<html lang=\"{}\">\n<head>\n"
                                "<meta charset=\"utf-8\">\n"
                                "<meta name=\"viewport\" content=\"width=device-width, "
                                "initial-scale=1\">\n"
                                "<title>{}</title>\n<style>{}</style>\n</head>\n<body>\n{}",
                                userLanguage(), escapeMarkup(title), styleSheet, end));
}

void PublishedPage::append(std::string_view markup) const {
    std::fstream file(file_, std::ios::binary | std::ios::in | std::ios::out);
    if (!file) failToWrite(file_, errno);
    const std::streamoff place = endOfBody(file, file_);
    file.seekp(place);
    file.write(markup.data(), static_cast<std::streamsize>(markup.size()));
    file.write(end.data(), static_cast<std::streamsize>(end.size()));
    file.close();
    if (file) return;
    const int reason = errno;
    // What there was no room for goes again, and the end comes back into the room that it had.
    std::error_code ignored;
    fs::resize_file(file_, static_cast<std::uintmax_t>(place), ignored);
    std::ofstream(file_, std::ios::binary | std::ios::app) << end;
    failToWrite(file_, reason);
}

fs::path PublishedPage::placeForPicture() {
    const fs::path folder = file_.parent_path() / (file_.stem().string() + "_files");
    std::error_code error;
    fs::create_directory(folder, error);
    if (error) failToWrite(folder, error.value());
    fs::path picture;
    do {
        picture = folder / fmt::format("image{:03}.png", ++lastPicture_);
    } while (fs::exists(fs::symlink_status(picture, error)));
    return picture;
}

std::string PublishedPage::addressOf(const fs::path& picture) const {
    return addressWord(picture.parent_path().filename().string()) + "/" +
           picture.filename().string();
}

void writePagePicture(const fs::path& place, std::string_view png) {
    writeNew(place, png);
}

}  // namespace office::model::excel
