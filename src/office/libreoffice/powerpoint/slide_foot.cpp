#include "office/libreoffice/powerpoint/slide_foot.h"

namespace libreoffice::powerpoint {

SlideFoot::SlideFoot(const uno::Reference<css::drawing::XDrawPage>& slide)
    : values_(slide, {"DateTimeFormat", "DateTimeText", "FooterText", "IsDateTimeFixed",
                      "IsDateTimeVisible", "IsFooterVisible", "IsPageNumberVisible"}) {
    const auto is = [&](const rtl::OUString& name) { return values_.get<bool>(name); };
    const auto isEmpty = [&](const rtl::OUString& name) {
        return values_.any(name) == uno::Any(rtl::OUString());
    };
    const bool showsDate =
        is("IsDateTimeVisible") && !(is("IsDateTimeFixed") && isEmpty("DateTimeText"));
    const bool showsFooter = is("IsFooterVisible") && !isEmpty("FooterText");
    if (!is("IsPageNumberVisible") && !showsDate && !showsFooter) values_ = {};
}

void SlideFoot::applyTo(const uno::Reference<css::drawing::XDrawPage>& slide) const {
    values_.applyTo(slide);
}

}  // namespace libreoffice::powerpoint
