#pragma once

#include <com/sun/star/drawing/XDrawPage.hpp>
#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Sequence.hxx>

#include "office/libreoffice/powerpoint/held_shape.h"

namespace libreoffice::powerpoint {

/// How a master page sets its title, as far as a new slide of it does not take it over.
///
/// LibreOffice reads a PowerPoint title's bold type, and that its frame keeps its height, for the
/// slides in the file and for the sample text on the master page; the style that new slides follow
/// lacks them.
class TitleLook {
public:
    /// What differs between the master page's title and one that a new slide of it has got.
    static TitleLook difference(const uno::Reference<css::drawing::XDrawPage>& masterPage,
                                HeldShape& newTitle);

    void applyToFrame(HeldShape& title) const;
    /// For a title that holds words: what is set of an empty one gets lost with its prompt.
    void applyToText(HeldShape& title) const;

private:
    struct Settings {
        uno::Sequence<rtl::OUString> names;
        uno::Sequence<uno::Any> values;
    };
    static void apply(const Settings& settings, HeldShape& title);
    static Settings differing(const uno::Reference<uno::XInterface>& wanted,
                              const uno::Reference<uno::XInterface>& present,
                              std::initializer_list<const char*> sortedNames);

    Settings ofText_;
    Settings ofFrame_;
};

}  // namespace libreoffice::powerpoint
