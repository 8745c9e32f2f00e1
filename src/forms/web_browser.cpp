#include "forms/web_browser.h"

namespace forms {

void WebBrowser::navigate(std::string_view url) {
    url_ = url;
    if (view != nullptr) view->navigate(url_);
}

}  // namespace forms
