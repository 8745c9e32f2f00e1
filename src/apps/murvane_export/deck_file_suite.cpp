#include "apps/murvane_export/deck_file_suite.h"

#include <filesystem>

#include "apps/utf8.h"
#include "office/package/workbook/paste_remarks.h"

namespace unattended {

namespace {

namespace package = office::package;

constexpr std::string_view powerPoint = "PowerPoint.Application";

package::MeasureText measureWith(session::Host& host) {
    return [&host](const std::string& words, const package::model::Font& font,
                   std::optional<double> widthPt) -> package::model::Size {
        const session::TextSize size = host.textSize(words, {font.name, font.sizePt}, widthPt);
        return {size.widthPt, size.heightPt};
    };
}

package::FileRules rulesOf(office::Suite& below, session::Host& host, const Options& options) {
    package::FileRules rules{.measure = measureWith(host), .clipboard = below.clipboard()};
    rules.embedsSheetAlone = options.embedsSheetAlone;
    if (options.linksAreRelative && !options.output.empty())
        rules.linkBase = std::filesystem::absolute(apps::pathOf(options.output)).parent_path();
    return rules;
}

}  // namespace

DeckFileSuite::DeckFileSuite(office::Suite& below, session::Host& host, const Options& options)
    : below_(below),
      rules_(rulesOf(below, host, options)),
      powerPoint_(package::powerPointOfFiles(rules_)) {}

office::Object DeckFileSuite::attach(std::string_view className) {
    return className == powerPoint ? powerPoint_ : below_.attach(className);
}

office::Object DeckFileSuite::start(std::string_view className) {
    return className == powerPoint ? powerPoint_ : below_.start(className);
}

std::vector<std::string> DeckFileSuite::remarksOn(office::PasteAs as,
                                                  const std::vector<office::PasteItem>& items) {
    return package::pasteRemarks(as, items, *rules_.workbooks, rules_.embedsSheetAlone);
}

}  // namespace unattended
