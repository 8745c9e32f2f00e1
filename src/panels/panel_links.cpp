#include "panels/panel_links.h"

#include "office/text.h"

namespace panels {

namespace {

/// `prefix` in small letters.
std::string keyBehind(std::string_view prefix, std::string_view url) {
    const std::size_t place = office::lowerCase(url).find(prefix);
    if (place == std::string::npos) return {};
    std::string_view key = url.substr(place + prefix.size());
    key = key.substr(0, key.find('?'));
    key = key.substr(0, key.find('#'));
    return std::string(office::trim(key));
}

}  // namespace

std::string ActionKeyFromUrl(std::string_view url) {
    return keyBehind("murvane://action/", url);
}

std::string ToggleKeyFromUrl(std::string_view url) {
    return keyBehind("murvane://toggle/", url);
}

std::string SelectKeyFromUrl(std::string_view url) {
    return keyBehind("murvane://select/", url);
}

std::string CancelIfToggle(std::string_view url, bool& cancel) {
    std::string key = ToggleKeyFromUrl(url);
    if (!key.empty()) cancel = true;
    return key;
}

}  // namespace panels
