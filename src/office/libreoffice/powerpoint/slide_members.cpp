#include "office/libreoffice/powerpoint/slide_members.h"

#include <com/sun/star/container/XNamed.hpp>

#include "office/libreoffice/powerpoint/shapes.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

Value SlideMembers::slideIndex() {
    return slide_->number();
}

Value SlideMembers::slideId() {
    return slide_->slideId();
}

Value SlideMembers::name() {
    return fromUno(as<css::container::XNamed>(slide_->page())->getName());
}

void SlideMembers::setName(const Value& name) {
    as<css::container::XNamed>(slide_->page())->setName(toUno(name.toText()));
}

Value SlideMembers::layout() {
    return document_->layouts().layoutOf(*slide_);
}

void SlideMembers::setLayout(const Value& number) {
    document_->layouts().apply(*slide_, number.toLong());
}

Value SlideMembers::shapes() {
    return makeObject<Shapes>(desk_, document_, slide_);
}

Value SlideMembers::select(const CallArguments& /*arguments*/) {
    document_->showSlide(slide_);
    return {};
}

Value SlideMembers::remove(const CallArguments& /*arguments*/) {
    document_->removeSlide(slide_);
    return {};
}

}  // namespace libreoffice::powerpoint
