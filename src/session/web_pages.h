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

/// What is said of a file, a folder or an address that no program of the user's opens.
[[nodiscard]] std::string cantOpen(std::string_view where);

/// They open the page in the user's browser; a notice says where it is if there is none.
void OpenDocOverview(OfficeSession& session);
void OpenDocFaq(OfficeSession& session);
void OpenContactPage(OfficeSession& session);

}  // namespace session
