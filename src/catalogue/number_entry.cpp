#include "catalogue/number_entry.h"

#include "office/text.h"

namespace catalogue {

namespace {

/// UTF-8: a character of several bytes goes as a whole.
std::string withoutLastCharacter(std::string text) {
    const auto continues = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
    };
    while (!text.empty() && continues(text.back())) text.pop_back();
    if (!text.empty()) text.pop_back();
    return text;
}

}  // namespace

bool isNumericEntry(std::string_view text) {
    // Both decimal separators: which one a keyboard types is the user's own.
    return office::numberOf(office::replaceAll(text, ",", ".")).has_value();
}

std::string Validate_Number_Entry(const std::string& text) {
    if (text.empty() || text == "-" || isNumericEntry(text)) return text;
    return withoutLastCharacter(text);
}

}  // namespace catalogue
