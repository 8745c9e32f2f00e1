#include "destinations/html_page.h"

#include <fmt/format.h>

#include <algorithm>

#include "office/failure_patterns.h"

namespace destinations {

using session::OfficeSession;

std::string defaultHtmlFolder(OfficeSession& session) {
    return session.host.outputFolder("MurvaneHTML");
}

HtmlFiles::HtmlFiles(OfficeSession& session, const HtmlOptions& options) : host_(session.host) {
    constexpr int first = 101;
    constexpr int last = 999;
    const std::string folder = options.folder.empty() ? defaultHtmlFolder(session) : options.folder;
    host_.makeFolder(folder);
    for (int number = first; number <= last; ++number) {
        imagesName_ = fmt::format("HTML{}", number);
        images_ = fmt::format("{}/{}", folder, imagesName_);
        page_ = fmt::format("{}/MurvaneHTML{}.html", folder, number);
        published_ = fmt::format("{}/MurvaneHTML{}_files", folder, number);
        if (!host_.pathExists(page_) && !host_.pathExists(images_) && !host_.pathExists(published_))
            return;
    }
    isKept_ = true;
    throw office::Failure(office::FailureNumber::PathFileAccess, "Host",
                          fmt::format("{} holds pages of all numbers up to {}. Move some of them "
                                      "elsewhere, and try again.",
                                      folder, last));
}

HtmlFiles::~HtmlFiles() {
    if (isKept_) return;
    try {
        host_.removeFolder(images_);
        host_.removeFolder(published_);
        host_.deleteFile(page_);
    } catch (const office::Failure&) {
        // The export may have ended before there was a page.
        return;
    }
}

void AppendHtmlBlock(HtmlBody& body, double widthPx, std::int32_t skipLines,
                     std::string_view imagePath, std::string_view caption) {
    constexpr std::int32_t mostLines = 100;
    if (!caption.empty() && body.useTitles) {
        body.text += fmt::format(
            "<div style='text-align: center;'><big><big><big>{}<br></big></big></big></div>"
            "<br><br>",
            caption);
    }
    // Browsers pass over the height without a number.
    body.text += fmt::format(
        "<div style='text-align: center;'> \n"
        "<img style='width:{}px; height:px;' alt='vfd'\nsrc={}></div>\n\n",
        widthPx, imagePath);
    for (std::int32_t line = 0; line < std::min(mostLines, skipLines); ++line) body.text += "<br>";
}

void WriteHtmlFile(session::Host& host, const std::string& file, std::string_view text) {
    // The page has no head to name its encoding; the mark at its start does, and isn't seen.
    constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
    host.writeFile(file, fmt::format("{}{}\n", utf8Mark, text));
}

}  // namespace destinations
