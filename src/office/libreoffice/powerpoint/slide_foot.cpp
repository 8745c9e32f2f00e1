#include "office/libreoffice/powerpoint/slide_foot.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>

namespace libreoffice::powerpoint {

namespace {

enum Property { DateFormat, DateText, Footer, IsDateFixed, HasDate, HasFooter, HasNumber };

const uno::Sequence<rtl::OUString>& footProperties() {
    static const auto names =
        namesOf({"DateTimeFormat", "DateTimeText", "FooterText", "IsDateTimeFixed",
                 "IsDateTimeVisible", "IsFooterVisible", "IsPageNumberVisible"});
    return names;
}

}  // namespace

SlideFoot::SlideFoot(const uno::Reference<css::drawing::XDrawPage>& slide)
    : values_(as<css::beans::XMultiPropertySet>(slide)->getPropertyValues(footProperties())) {
    const auto is = [&](Property one) { return values_[one] == uno::Any(true); };
    const auto isEmpty = [&](Property one) { return values_[one] == uno::Any(rtl::OUString()); };
    const bool showsDate = is(HasDate) && !(is(IsDateFixed) && isEmpty(DateText));
    const bool showsFooter = is(HasFooter) && !isEmpty(Footer);
    if (!is(HasNumber) && !showsDate && !showsFooter) values_ = {};
}

void SlideFoot::applyTo(const uno::Reference<css::drawing::XDrawPage>& slide) const {
    if (!values_.hasElements()) return;
    as<css::beans::XMultiPropertySet>(slide)->setPropertyValues(footProperties(), values_);
}

}  // namespace libreoffice::powerpoint
