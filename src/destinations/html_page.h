#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "session/office_session.h"

/// The files of one export to HTML, and the markup of a page of images.
namespace destinations {

struct HtmlOptions {
    bool useTitles = true;  ///< captions above the items
    /// Of each image in pixels, on a page of images.
    double widthPx = 700;
    /// Between items: 0 to `mostBlankLines`.
    std::int32_t skipLines = 10;
    /// It is made if need be.
    std::string folder = {};
};
inline constexpr std::int32_t mostBlankLines = 100;

/// "MurvaneHTML" in the user's home.
[[nodiscard]] std::string defaultHtmlFolder(session::OfficeSession& session);

/// Where a page and its pictures go: into a draft that nobody sees until it is kept. Otherwise it
/// goes with this object, and nothing of an export that failed is left.
class HtmlFiles {
public:
    /// Takes the first number whose names are free, and makes the folder with the draft in it.
    /// `office::Failure` 75 if they can't be made or all numbers are taken.
    HtmlFiles(session::OfficeSession& session, const HtmlOptions& options);
    ~HtmlFiles();
    HtmlFiles(const HtmlFiles&) = delete;
    HtmlFiles& operator=(const HtmlFiles&) = delete;

    /// In the draft.
    [[nodiscard]] std::string page() const { return draft_ + "/" + pageName_; }
    /// The folder of the page's images in the draft, and its name as the page knows it.
    [[nodiscard]] std::string images() const { return draft_ + "/" + imagesName_; }
    [[nodiscard]] const std::string& imagesName() const { return imagesName_; }
    /// Moves all that the draft holds to its place, the page last. The page's path there.
    /// `office::Failure` 75 if that can't be done; then nothing is there.
    std::string keep();

private:
    session::Host& host_;
    std::string folder_;
    std::string draft_;
    std::string pageName_;
    std::string imagesName_;
};

/// The markup that a page of images is collected in.
struct HtmlBody {
    bool useTitles = true;
    std::string text;
};

/// Adds one item: its title if it has one and titles are wanted, the image in this width with a
/// height that follows from it, and blank lines. The caption goes in as it stands, so that it may
/// hold markup of its own; the path must need no quotes.
void AppendHtmlBlock(HtmlBody& body, double widthPx, std::int32_t skipLines,
                     std::string_view imagePath, std::string_view caption);

/// Writes the page as a whole. `office::Failure` 75 if it can't be written.
void WriteHtmlFile(session::Host& host, const std::string& file, std::string_view text);

}  // namespace destinations
