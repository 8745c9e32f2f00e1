#pragma once

#include <com/sun/star/drawing/XDrawPage.hpp>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::powerpoint {

/// What a slide shows of its master page's foot: its number, a footer and a date.
class SlideFoot {
public:
    SlideFoot() = default;
    explicit SlideFoot(const uno::Reference<css::drawing::XDrawPage>& slide);

    /// Lets another slide show the same. A new slide of LibreOffice has none of them.
    void applyTo(const uno::Reference<css::drawing::XDrawPage>& slide) const;

private:
    NamedValues values_;
};

}  // namespace libreoffice::powerpoint
