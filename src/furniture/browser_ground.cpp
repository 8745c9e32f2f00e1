#include "furniture/browser_ground.h"

namespace furniture {

void ApplyBrowserBackground(forms::WebBrowser& browser, std::string_view colour) {
    forms::BrowserView* document = browser.view;
    if (document == nullptr || !document->isComplete()) return;
    document->setStyle("background-color", colour);
    document->setStyle("height", "100%");
    document->setBodyStyle("margin", "0");
    document->setBodyStyle("padding", "0");
}

}  // namespace furniture
