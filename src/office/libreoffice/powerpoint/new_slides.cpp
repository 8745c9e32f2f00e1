#include "office/libreoffice/powerpoint/new_slides.h"

namespace libreoffice::powerpoint {

bool NewSlides::areAt(const Connection& connection, std::int32_t place, std::int32_t layout) const {
    // The document's record holds it and so does this one: no slide object of automation does. The
    // others can only be got by a call.
    constexpr long ownHolders = 2;
    return first_ && layout_ == layout && connection.remoteCalls() == callsBefore_ &&
           first_.use_count() == ownHolders && first_->number() == place;
}

void NewSlides::beginWith(const Connection& connection, const HeldPagePtr& slide,
                          std::int32_t layout) {
    first_ = slide;
    count_ = 1;
    layout_ = layout;
    callsBefore_ = connection.remoteCalls();
}

void NewSlides::add(const Connection& connection) {
    ++count_;
    callsBefore_ = connection.remoteCalls();
}

}  // namespace libreoffice::powerpoint
