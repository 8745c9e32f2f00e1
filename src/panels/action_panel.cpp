#include "panels/action_panel.h"

#include "office/text.h"
#include "panels/page_file.h"

namespace panels {

void ShowActionPanel(session::Host& host, forms::WebBrowser& browser, const ActionPanel& panel) {
    NavigatePanelFile(host, browser, BuildActionPanelHtml(panel));
}

void NavigatePanelFile(session::Host& host, forms::WebBrowser& browser, std::string_view page) {
    navigateToPage(host, browser, "MurvaneDialogStatus.html", page);
}

std::string ReadFieldValue(const forms::WebBrowser& browser, std::string_view id,
                           std::string_view fallback) {
    if (browser.view == nullptr) return std::string(fallback);
    const auto value = browser.view->fieldValue(id);
    return std::string(value ? office::trim(*value) : fallback);
}

}  // namespace panels
