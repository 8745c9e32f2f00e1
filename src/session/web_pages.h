#pragma once

#include <string>
#include <string_view>

#include "session/office_session.h"

namespace session {

/// One of the pages about the program that a user's browser shows.
struct WebPage {
    /// The variable of the environment that names the address, where whoever hands the program on
    /// has a page of his own.
    std::string_view variable;
    /// The page that comes with the program, which is shown otherwise.
    std::string_view helpFile;
};

inline constexpr WebPage docOverview = {"MURVANE_DOCUMENTATION_URL", "overview.html"};
inline constexpr WebPage docFaq = {"MURVANE_FAQ_URL", "faq.html"};
inline constexpr WebPage contactPage = {"MURVANE_CONTACT_URL", "contact.html"};

[[nodiscard]] std::string addressOf(Host& host, const WebPage& page);

/// Whether the browser shows the page is nobody's concern here.
void OpenDocOverview(OfficeSession& session);
void OpenDocFaq(OfficeSession& session);
void OpenContactPage(OfficeSession& session);

}  // namespace session
