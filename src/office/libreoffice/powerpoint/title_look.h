#pragma once

#include <com/sun/star/drawing/XDrawPage.hpp>
#include <com/sun/star/drawing/XShape.hpp>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::powerpoint {

class ImpressDeck;

/// How a master page sets its title, as far as a new slide of it does not take it over.
///
/// LibreOffice reads a PowerPoint title's bold type, and that its frame keeps its height, for the
/// slides in the file and for the sample text on the master page; the style that new slides follow
/// lacks them.
class TitleLook {
public:
    using ShapeRef = uno::Reference<css::drawing::XShape>;

    /// What differs between the master page's title and one that a new slide of it has got.
    TitleLook(ImpressDeck& deck, const uno::Reference<css::drawing::XDrawPage>& masterPage,
              const ShapeRef& newTitle);

    void applyToFrame(const ShapeRef& title) const { ofFrame_.applyTo(title); }
    /// For a title that holds words.
    void applyToText(const ShapeRef& title) const { ofText_.applyTo(title); }

private:
    NamedValues ofText_;
    NamedValues ofFrame_;
};

}  // namespace libreoffice::powerpoint
