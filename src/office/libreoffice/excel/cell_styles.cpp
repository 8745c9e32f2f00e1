#include "office/libreoffice/excel/cell_styles.h"

#include <com/sun/star/style/XStyle.hpp>
#include <com/sun/star/style/XStyleFamiliesSupplier.hpp>

#include <algorithm>
#include <iterator>
#include <utility>

namespace libreoffice::excel {

CellStyle cellStyle(const uno::Reference<css::frame::XModel>& book, const rtl::OUString& name) {
    const auto families = as<css::style::XStyleFamiliesSupplier>(book)->getStyleFamilies();
    const uno::Reference<css::container::XNameAccess> styles(families->getByName("CellStyles"),
                                                             uno::UNO_QUERY_THROW);
    if (!styles->hasByName(name)) return {};
    return {styles->getByName(name), uno::UNO_QUERY_THROW};
}

CellStyle parentOf(const uno::Reference<css::frame::XModel>& book, const CellStyle& style) {
    return cellStyle(book, as<css::style::XStyle>(style)->getParentStyle());
}

std::vector<rtl::OUString> ownProperties(const CellStyle& style) {
    std::vector<rtl::OUString> names;
    const auto all = as<css::beans::XPropertySet>(style)->getPropertySetInfo()->getProperties();
    for (const css::beans::Property& each : all) {
        if (!each.Name.startsWith("TableBorder") && !each.Name.endsWith("ComplexColor") &&
            each.Name != "DisplayName")
            names.push_back(each.Name);
    }
    std::sort(names.begin(), names.end());
    const auto states = style->getPropertyStates(sequenceOf(names));
    std::vector<rtl::OUString> own;
    for (sal_Int32 i = 0; i < states.getLength(); ++i)
        if (states[i] == css::beans::PropertyState_DIRECT_VALUE)
            own.push_back(names[static_cast<std::size_t>(i)]);
    return own;
}

std::vector<rtl::OUString> propertiesAlongParents(const uno::Reference<css::frame::XModel>& book,
                                                  const CellStyle& style) {
    // No style is its own forefather: the suite refuses that.
    std::vector<rtl::OUString> all;
    for (CellStyle each = style; each.is(); each = parentOf(book, each)) {
        const auto own = ownProperties(each);
        const auto before = std::exchange(all, {});
        std::set_union(before.begin(), before.end(), own.begin(), own.end(),
                       std::back_inserter(all));
    }
    return all;
}

bool takesAfterParent(const uno::Reference<css::frame::XModel>& book, const CellStyle& style,
                      const std::vector<rtl::OUString>& own) {
    const auto parent = parentOf(book, style);
    if (!parent.is()) return false;
    const auto parents = propertiesAlongParents(book, parent);
    std::vector<rtl::OUString> open;
    std::set_difference(parents.begin(), parents.end(), own.begin(), own.end(),
                        std::back_inserter(open));
    return NamedValues(style, open) == NamedValues(parent, open);
}

}  // namespace libreoffice::excel
