#include "office/libreoffice/powerpoint/slides.h"

#include <utility>

#include "office/libreoffice/powerpoint/slide.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

Slides::Slides(DeskPtr desk, ImpressDocumentPtr document)
    : UnoObject(std::move(desk), document),
      document_(std::move(document)) {}

const office::MemberTable<Slides>& Slides::members() {
    static const auto table = office::MemberTable<Slides>("Slides")
                                  .property("Count", &Slides::count)
                                  .property("Item", {"Index"}, &Slides::item)
                                  .method("Add", {"Index", "Layout"}, &Slides::add);
    return table;
}

Value Slides::count() {
    return document_->slideCount();
}

Value Slides::item(const CallArguments& arguments) {
    return makeObject<Slide>(deskPtr(), document_, document_->slide(arguments.at(0).toLong()));
}

Value Slides::add(const CallArguments& arguments) {
    const HeldPagePtr slide = document_->addSlide(desk().connection(), arguments.at(0).toLong(),
                                                  arguments.at(1).toLong());
    return makeObject<Slide>(deskPtr(), document_, slide);
}

}  // namespace libreoffice::powerpoint
