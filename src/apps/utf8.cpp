#include "apps/utf8.h"

#include <algorithm>

namespace apps {

namespace {

unsigned char byteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}

/// Bytes of the character that begins here; 0 if none does.
std::size_t characterLength(std::string_view text, std::size_t at) {
    const unsigned char lead = byteAt(text, at);
    if (lead < 0x80U) return 1;
    const std::size_t length = lead >= 0xF0U ? 4 : lead >= 0xE0U ? 3 : 2;
    if (lead < 0xC2U || lead > 0xF4U || at + length > text.size()) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!isContinuation(byteAt(text, at + i))) return 0;
    }
    // Overlong forms, surrogates, and what lies beyond the last plane.
    const unsigned char second = byteAt(text, at + 1);
    const bool wrong = (lead == 0xE0U && second < 0xA0U) || (lead == 0xEDU && second > 0x9FU) ||
                       (lead == 0xF0U && second < 0x90U) || (lead == 0xF4U && second > 0x8FU);
    return wrong ? 0 : length;
}

}  // namespace

std::size_t firstBadUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = characterLength(text, at);
        if (length == 0) return at;
        at += length;
    }
    return std::string_view::npos;
}

std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return !isContinuation(static_cast<unsigned char>(c));
    }));
}

std::string printable(std::string_view text) {
    std::string shown(text);
    std::replace_if(
        shown.begin(), shown.end(),
        [](char c) { return static_cast<unsigned char>(c) < 0x20U || c == '\x7F'; }, ' ');
    return shown;
}

}  // namespace apps
