#include "forms_double/scripted_browser.h"

#include <gtest/gtest.h>

#include <utility>

namespace forms_double {

namespace {

std::string readPage(std::string_view url, const PageScript& script) {
    constexpr std::string_view scheme = "file://";
    if (!url.starts_with(scheme)) return {};
    url.remove_prefix(scheme.size());
    if (script.files == nullptr) return {};
    const auto found = script.files->find(url);
    return found == script.files->end() ? std::string() : found->second;
}

}  // namespace

bool ScriptedBrowser::hasLink(std::string_view address) const {
    return page_.find("href=\"" + std::string(address) + "\"") != std::string::npos;
}

bool ScriptedBrowser::click(std::string_view address) {
    if (!hasLink(address)) {
        ADD_FAILURE() << "the page has no link to " << address;
        return false;
    }
    if (control_.onBeforeNavigate && control_.onBeforeNavigate(address)) return true;
    pending_ = address;
    return false;
}

void ScriptedBrowser::navigate(std::string_view url) {
    if (control_.onBeforeNavigate && control_.onBeforeNavigate(url)) return;
    navigations.emplace_back(url);
    pending_ = url.substr(0, url.find('#'));
    isLoaded_ = false;
}

void ScriptedBrowser::finishLoading() {
    if (pending_.empty() || !script_.completes) return;
    page_ = readPage(std::exchange(pending_, {}), script_);
    isLoaded_ = true;
    if (control_.onDocumentComplete) control_.onDocumentComplete();
}

std::optional<std::string> ScriptedBrowser::fieldValue(std::string_view id) {
    const auto found = script_.fields.find(id);
    if (!isLoaded_ || found == script_.fields.end()) return std::nullopt;
    return found->second;
}

int ScriptedBrowser::contentHeight(std::string_view id) {
    const auto found = script_.contentHeights.find(id);
    return !isLoaded_ || found == script_.contentHeights.end() ? 0 : found->second;
}

void ScriptedBrowser::setStyle(std::string_view property, std::string_view value) {
    if (isLoaded_) styles[std::string(property)] = value;
}

void ScriptedBrowser::setBodyStyle(std::string_view property, std::string_view value) {
    if (isLoaded_) bodyStyles[std::string(property)] = value;
}

void ScriptedBrowser::setDivStyle(std::string_view className, std::string_view property,
                                  std::string_view value) {
    if (isLoaded_) divStyles[std::string(className) + " " + std::string(property)] = value;
}

}  // namespace forms_double
