#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace office::model::excel {

/// A page that parts of workbooks are published to: a file that grows at its end and is a whole
/// document at any time, and the folder beside it with its pictures.
///
/// Whatever can't be written is a `Failure` 75 with the file's name; the page is then as it was.
class PublishedPage {
public:
    /// The number of the last picture is counted up with each that is added.
    PublishedPage(std::string_view file, int& lastPicture);

    /// Whether there is such a file.
    [[nodiscard]] bool exists() const;
    /// Makes a page with nothing on it. An earlier one is replaced.
    void begin(std::string_view title) const;
    /// Adds markup ahead of the end of the body. `Failure` 1004 for a file that has none.
    void append(std::string_view markup) const;
    /// Makes room for a picture beside the page: the path of a file that is not there yet.
    [[nodiscard]] std::filesystem::path placeForPicture();
    /// The address that the page finds such a file by.
    [[nodiscard]] std::string addressOf(const std::filesystem::path& picture) const;

private:
    std::filesystem::path file_;
    int& lastPicture_;
};

/// Puts a picture into its place.
void writePagePicture(const std::filesystem::path& place, std::string_view png);

}  // namespace office::model::excel
