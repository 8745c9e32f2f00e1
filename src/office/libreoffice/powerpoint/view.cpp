#include "office/libreoffice/powerpoint/view.h"

#include <utility>

#include "office/libreoffice/powerpoint/slide.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

View::View(DeskPtr desk, ImpressDocumentPtr document)
    : UnoObject(std::move(desk), document),
      document_(std::move(document)) {}

const office::MemberTable<View>& View::members() {
    static const auto table = office::MemberTable<View>("View")
                                  .property("Slide", &View::slide)
                                  .property("Type", &View::type)
                                  .method("GotoSlide", {"Index"}, &View::gotoSlide);
    return table;
}

Value View::slide() {
    return makeObject<Slide>(deskPtr(), document_, document_->slideInView());
}

Value View::type() {
    return document_->window().viewType(desk().connection());
}

Value View::gotoSlide(const CallArguments& arguments) {
    document_->showSlide(document_->slide(arguments.at(0).toLong()));
    return {};
}

}  // namespace libreoffice::powerpoint
