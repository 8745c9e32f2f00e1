#include "apps/murvane_export/deck_file_suite.h"

#include "office/package/presentation/deck_file.h"

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

}  // namespace

DeckFileSuite::DeckFileSuite(office::Suite& below, session::Host& host)
    : below_(below),
      powerPoint_(package::powerPointOfFiles({measureWith(host), below.clipboard()})) {}

office::Object DeckFileSuite::attach(std::string_view className) {
    return className == powerPoint ? powerPoint_ : below_.attach(className);
}

office::Object DeckFileSuite::start(std::string_view className) {
    return className == powerPoint ? powerPoint_ : below_.start(className);
}

}  // namespace unattended
