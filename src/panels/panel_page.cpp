#include "panels/panel_page.h"

#include "panels/markup.h"
#include "panels/panel_style.h"
#include "panels/summary.h"

namespace panels {

std::string BuildActionPanelHtml(const ActionPanel& panel) {
    std::string body = BuildSummaryHtml(panel.message, panel.destinationWord);
    if (body.empty()) body = TextToParagraphs(panel.message);

    std::string content = block("div", "body", body) + panel.tools + panel.options;
    if (!panel.footer.empty()) content += block("div", "footer", HtmlEscape(panel.footer));

    return wholePage(PanelCssBase() + PanelCssOptions() + PanelCssTools(),
                     block("div", "panel " + NormalizeNoticeKind(panel.kind), content));
}

}  // namespace panels
