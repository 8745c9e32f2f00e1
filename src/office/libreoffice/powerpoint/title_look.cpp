#include "office/libreoffice/powerpoint/title_look.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextCursor.hpp>

#include <vector>

#include "office/libreoffice/powerpoint/impress_deck.h"

namespace libreoffice::powerpoint {

namespace {

template <class Type>
uno::Sequence<Type> sequenceOf(const std::vector<Type>& elements) {
    return {elements.data(), static_cast<sal_Int32>(elements.size())};
}

uno::Reference<css::text::XTextCursor> firstCharacterOf(
    const uno::Reference<css::drawing::XShape>& shape) {
    const auto cursor = as<css::text::XText>(shape)->createTextCursor();
    cursor->gotoStart(false);
    cursor->goRight(1, true);
    return cursor;
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

TitleLook::Settings TitleLook::differing(const uno::Reference<uno::XInterface>& wanted,
                                         const uno::Reference<uno::XInterface>& present,
                                         const std::vector<std::string_view>& sortedNames) {
    const auto names = namesOf(sortedNames);
    const auto wantedValues = as<css::beans::XMultiPropertySet>(wanted)->getPropertyValues(names);
    const auto presentValues = as<css::beans::XMultiPropertySet>(present)->getPropertyValues(names);
    std::vector<rtl::OUString> differentNames;
    std::vector<uno::Any> values;
    for (sal_Int32 i = 0; i < names.getLength(); ++i) {
        if (!wantedValues[i].hasValue() || wantedValues[i] == presentValues[i]) continue;
        differentNames.push_back(names[i]);
        values.push_back(wantedValues[i]);
    }
    return {sequenceOf(differentNames), sequenceOf(values)};
}

void TitleLook::apply(const Settings& settings, const ShapeRef& title) {
    if (settings.names.hasElements())
        as<css::beans::XMultiPropertySet>(title)->setPropertyValues(settings.names,
                                                                    settings.values);
}

}  // namespace libreoffice::powerpoint
