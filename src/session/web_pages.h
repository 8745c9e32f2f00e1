#pragma once

#include <string_view>

#include "session/office_session.h"

/// The web pages that the program opens. The host is the maker's to set.
namespace session::address {

inline constexpr std::string_view docOverview = "https://murvane.example/docs/0Overview.html";
inline constexpr std::string_view docFaq = "https://murvane.example/docs/0Overview.html#faqs";
inline constexpr std::string_view contact = "https://murvane.example/contact";

}  // namespace session::address

/// Pages that the user's browser shows. Whether it does is nobody's concern here.
namespace session {

void OpenDocOverview(OfficeSession& session);
void OpenDocFaq(OfficeSession& session);
void OpenContactPage(OfficeSession& session);

}  // namespace session
