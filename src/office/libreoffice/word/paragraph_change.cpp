#include "office/libreoffice/word/paragraph_change.h"

#include <com/sun/star/beans/XMultiPropertyStates.hpp>
#include <com/sun/star/style/BreakType.hpp>
#include <com/sun/star/style/ParagraphAdjust.hpp>
#include <com/sun/star/text/XParagraphCursor.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/units.h"

namespace libreoffice::word {

namespace {

namespace model = office::model::word;

/// Word's styles by the names that LibreOffice's documents have for them in every language.
constexpr std::array<std::pair<std::int32_t, const char*>, 4> styles = {{
    {model::style::normal, "Standard"},
    {model::style::heading1, "Heading 1"},
    {model::style::caption, "Caption"},
    {model::style::title, "Title"},
}};

constexpr std::array<std::pair<model::Alignment, css::style::ParagraphAdjust>, 4> adjustments = {{
    {model::Alignment::Left, css::style::ParagraphAdjust_LEFT},
    {model::Alignment::Centre, css::style::ParagraphAdjust_CENTER},
    {model::Alignment::Right, css::style::ParagraphAdjust_RIGHT},
    {model::Alignment::Justified, css::style::ParagraphAdjust_BLOCK},
}};

rtl::OUString nameOfStyle(std::int32_t number) {
    const auto* const known = std::find_if(styles.begin(), styles.end(),
                                           [&](const auto& each) { return each.first == number; });
    if (known == styles.end())
        office::refuseCall("ParagraphFormat.Style",
                           fmt::format("There is no style {} here", number));
    return rtl::OUString::createFromAscii(known->second);
}

void forgetOwnLooks(const uno::Reference<css::text::XTextCursor>& paragraph, Letters letters) {
    if (letters == Letters::MayBeDressed) {
        const auto ends = as<css::text::XParagraphCursor>(paragraph);
        ends->gotoStartOfParagraph(false);
        ends->gotoEndOfParagraph(true);
    }
    as<css::beans::XMultiPropertyStates>(paragraph)->setAllPropertiesToDefault();
}

bool isInList(const uno::Reference<css::text::XTextCursor>& paragraph) {
    return !property<rtl::OUString>(paragraph, "NumberingStyleName").isEmpty();
}

}  // namespace

void changeParagraph(const uno::Reference<css::text::XTextCursor>& paragraph,
                     const model::ParagraphChange& change, Letters letters) {
    const rtl::OUString style = change.style ? nameOfStyle(*change.style) : rtl::OUString();
    if (change.style) forgetOwnLooks(paragraph, letters);
    NamedValues properties;
    if (change.breaksPageBefore || change.style)
        properties.add("BreakType", change.breaksPageBefore.value_or(false)
                                        ? css::style::BreakType_PAGE_BEFORE
                                        : css::style::BreakType_NONE);
    // The one look that LibreOffice doesn't forget. Its name comes ahead of that of
    // the style, which may bring its own.
    if (change.style && letters == Letters::MayBeDressed && isInList(paragraph))
        properties.add("NumberingStyleName", rtl::OUString());
    if (change.alignment)
        properties.add("ParaAdjust",
                       static_cast<sal_Int16>(
                           adjustments.at(static_cast<std::size_t>(*change.alignment)).second));
    if (change.spaceAfter) properties.add("ParaBottomMargin", hundredthMmOf(*change.spaceAfter));
    if (change.firstLineIndent) {
        properties.add("ParaFirstLineIndent", hundredthMmOf(*change.firstLineIndent));
        properties.add("ParaIsAutoFirstLineIndent", false);
    }
    if (change.leftIndent) properties.add("ParaLeftMargin", hundredthMmOf(*change.leftIndent));
    if (change.rightIndent) properties.add("ParaRightMargin", hundredthMmOf(*change.rightIndent));
    if (change.style) properties.add("ParaStyleName", style);
    if (change.spaceBefore) properties.add("ParaTopMargin", hundredthMmOf(*change.spaceBefore));
    properties.applyTo(paragraph);
}

}  // namespace libreoffice::word
