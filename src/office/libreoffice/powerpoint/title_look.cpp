#include "office/libreoffice/powerpoint/title_look.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>

#include <vector>

#include "office/libreoffice/powerpoint/shape_text.h"

namespace libreoffice::powerpoint {

namespace {

template <class Type>
uno::Sequence<Type> sequenceOf(const std::vector<Type>& elements) {
    return {elements.data(), static_cast<sal_Int32>(elements.size())};
}

}  // namespace

TitleLook TitleLook::difference(const uno::Reference<css::drawing::XDrawPage>& masterPage,
                                HeldShape& newTitle) {
    TitleLook look;
    const sal_Int32 count = masterPage->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        HeldShape shape(
            uno::Reference<css::drawing::XShape>(masterPage->getByIndex(i), uno::UNO_QUERY_THROW),
            {});
        if (!shape.isTitle()) continue;
        look.ofText_ =
            differing(cursorOver(shape, {.start = 0, .length = 1}), newTitle.properties(),
                      {"CharCaseMap", "CharColor", "CharFontName", "CharHeight", "CharHeightAsian",
                       "CharHeightComplex", "CharKerning", "CharPosture", "CharPostureAsian",
                       "CharPostureComplex", "CharUnderline", "CharWeight", "CharWeightAsian",
                       "CharWeightComplex", "ParaAdjust"});
        look.ofFrame_ = differing(shape.properties(), newTitle.properties(),
                                  {"TextAutoGrowHeight", "TextFitToSize"});
        break;
    }
    return look;
}

TitleLook::Settings TitleLook::differing(const uno::Reference<uno::XInterface>& wanted,
                                         const uno::Reference<uno::XInterface>& present,
                                         std::initializer_list<const char*> sortedNames) {
    std::vector<rtl::OUString> asked;
    for (const char* name : sortedNames) asked.push_back(rtl::OUString::createFromAscii(name));
    const auto names = sequenceOf(asked);
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

void TitleLook::applyToFrame(HeldShape& title) const {
    apply(ofFrame_, title);
}

void TitleLook::applyToText(HeldShape& title) const {
    apply(ofText_, title);
}

void TitleLook::apply(const Settings& settings, HeldShape& title) {
    if (settings.names.hasElements())
        as<css::beans::XMultiPropertySet>(title.shape())
            ->setPropertyValues(settings.names, settings.values);
}

}  // namespace libreoffice::powerpoint
