#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "office/text.h"

namespace support {

/// A page or sheet is one line. It is kept and compared with a line break behind every rule and
/// every tag that is followed by another, so that a reviewer can read it.
inline std::string brokenForReading(const std::string& page) {
    const std::string rules = office::replaceAll(page, "}", "}\n");
    return office::replaceAll(rules, "><", ">\n<") + "\n";
}

/// The page without the style sheet that it must have; the sheets are approved once, on their own.
inline std::string withoutStyle(const std::string& page, const std::string& sheet) {
    const std::string head = "<style>" + sheet + "</style>";
    EXPECT_NE(page.find(head), std::string::npos) << "the page has another style sheet";
    return office::replaceAll(page, head, "<style></style>");
}

/// Passes if the text equals the approved one of this name. Otherwise the text as received is left
/// in the build folder, from where it can be compared and, once read and found right, copied over
/// the approved one.
inline void expectApprovedText(const std::string& received, const std::string& name) {
    std::ifstream file(std::filesystem::path(APPROVED_FOLDER) / name);
    std::ostringstream approved;
    approved << file.rdbuf();
    if (file && approved.str() == received) return;

    const auto place = std::filesystem::path(RECEIVED_FOLDER) / (name + ".received");
    std::ofstream(place) << received;
    ADD_FAILURE() << "not as approved: compare approved/" << name << " with " << place;
}

/// The same of a page or sheet.
inline void expectApproved(const std::string& page, const std::string& name) {
    ASSERT_EQ(page.find('\n'), std::string::npos) << "a page is one line";
    expectApprovedText(brokenForReading(page), name);
}

}  // namespace support
