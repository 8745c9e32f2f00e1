#include "apps/murvane_export/deck_file_suite.h"

#include "office/package/presentation/deck_file.h"

namespace unattended {

namespace {

constexpr std::string_view powerPoint = "PowerPoint.Application";

}  // namespace

DeckFileSuite::DeckFileSuite(office::Suite& below, session::Host& host)
    : below_(below),
      powerPoint_(office::package::powerPointOfFiles([&host](
                                                         const std::string& words,
                                                         const office::package::model::Font& font,
                                                         std::optional<double> widthPt)
                                                         -> office::package::model::Size {
          const session::TextSize size = host.textSize(words, {font.name, font.sizePt}, widthPt);
          return {size.widthPt, size.heightPt};
      })) {}

office::Object DeckFileSuite::attach(std::string_view className) {
    return className == powerPoint ? powerPoint_ : below_.attach(className);
}

office::Object DeckFileSuite::start(std::string_view className) {
    return className == powerPoint ? powerPoint_ : below_.start(className);
}

}  // namespace unattended
