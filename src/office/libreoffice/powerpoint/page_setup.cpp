#include "office/libreoffice/powerpoint/page_setup.h"

#include <utility>

#include "office/libreoffice/units.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

PageSetup::PageSetup(DeskPtr desk, ImpressDocumentPtr document)
    : UnoObject(std::move(desk), document),
      document_(std::move(document)) {}

const office::MemberTable<PageSetup>& PageSetup::members() {
    static const auto table =
        office::MemberTable<PageSetup>("PageSetup")
            .property("SlideWidth",
                      [](PageSetup& self, const CallArguments&) -> Value {
                          return pointsOf(self.document_->slideSize().Width);
                      })
            .property("SlideHeight", [](PageSetup& self, const CallArguments&) -> Value {
                return pointsOf(self.document_->slideSize().Height);
            });
    return table;
}

}  // namespace libreoffice::powerpoint
