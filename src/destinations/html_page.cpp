#include "destinations/html_page.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "office/failure_patterns.h"

namespace destinations {

using session::OfficeSession;

std::string defaultHtmlFolder(OfficeSession& session) {
    return session.host.outputFolder("MurvaneHTML");
}

HtmlFiles::HtmlFiles(OfficeSession& session, const HtmlOptions& options)
    : host_(session.host),
      folder_(options.folder) {
    constexpr int first = 101;
    constexpr int last = 999;
    host_.makeFolder(folder_);
    const std::vector<std::string> names = host_.namesIn(folder_);
    for (int number = first; number <= last; ++number) {
        imagesName_ = fmt::format("HTML{}", number);
        const std::string pageStem = fmt::format("MurvaneHTML{}", number);
        pageName_ = pageStem + ".html";
        // Excel puts a page's pictures into a folder beside it that is called after the page, with
        // an ending of its own language.
        if (std::any_of(names.begin(), names.end(), [&](const std::string& name) {
                return name == imagesName_ || name.starts_with(pageStem);
            }))
            continue;
        draft_ = host_.makeDraftFolder(folder_);
        return;
    }
    throw office::Failure(office::FailureNumber::PathFileAccess, "Host",
                          fmt::format("{} holds pages of all numbers up to {}. Move some of them "
                                      "elsewhere, and try again.",
                                      folder_, last));
}

HtmlFiles::~HtmlFiles() {
    host_.removeFolder(draft_);
}

std::string HtmlFiles::keep() {
    std::string page = folder_ + "/" + pageName_;
    std::vector<std::string> moved;
    try {
        for (const std::string& name : host_.namesIn(draft_)) {
            if (name == pageName_) continue;
            host_.moveTo(draft_ + "/" + name, folder_ + "/" + name);
            moved.push_back(folder_ + "/" + name);
        }
        host_.moveTo(this->page(), page);
    } catch (const office::Failure&) {
        for (const std::string& folder : moved) host_.removeFolder(folder);
        throw;
    }
    return page;
}

void AppendHtmlBlock(HtmlBody& body, double widthPx, std::int32_t skipLines,
                     std::string_view imagePath, std::string_view caption) {
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
    for (std::int32_t line = 0; line < skipLines; ++line) body.text += "<br>";
}

void WriteHtmlFile(session::Host& host, const std::string& file, std::string_view text) {
    // The page has no head to name its encoding; the mark at its start does, and isn't seen.
    constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
    host.writeFile(file, fmt::format("{}{}\n", utf8Mark, text));
}

}  // namespace destinations
