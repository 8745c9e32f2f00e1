#include "office/libreoffice/powerpoint/title_look.h"

#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextCursor.hpp>

#include <vector>

#include "office/libreoffice/powerpoint/impress_deck.h"

namespace libreoffice::powerpoint {

namespace {

uno::Reference<css::text::XTextCursor> firstCharacterOf(
    const uno::Reference<css::drawing::XShape>& shape) {
    const auto cursor = as<css::text::XText>(shape)->createTextCursor();
    cursor->gotoStart(false);
    cursor->goRight(1, true);
    return cursor;
}

NamedValues differing(const uno::Reference<uno::XInterface>& wanted,
                      const uno::Reference<uno::XInterface>& present,
                      const std::vector<rtl::OUString>& names) {
    const NamedValues before(present, names);
    NamedValues differing;
    for (const auto& [name, value] : NamedValues(wanted, names))
        if (value.hasValue() && value != before.any(name)) differing.add(name, value);
    return differing;
}

}  // namespace

TitleLook::TitleLook(ImpressDeck& deck, const uno::Reference<css::drawing::XDrawPage>& masterPage,
                     const ShapeRef& newTitle) {
    const sal_Int32 count = masterPage->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const ShapeRef shape(masterPage->getByIndex(i), uno::UNO_QUERY_THROW);
        deck.hold(shape);
        if (serviceOf(shape) != "com.sun.star.presentation.TitleTextShape") continue;
        ofText_ = differing(firstCharacterOf(shape), newTitle,
                            {"CharCaseMap", "CharColor", "CharFontName", "CharHeight",
                             "CharHeightAsian", "CharHeightComplex", "CharKerning", "CharPosture",
                             "CharPostureAsian", "CharPostureComplex", "CharUnderline",
                             "CharWeight", "CharWeightAsian", "CharWeightComplex", "ParaAdjust"});
        ofFrame_ = differing(shape, newTitle, {"TextAutoGrowHeight", "TextFitToSize"});
        return;
    }
}

}  // namespace libreoffice::powerpoint
