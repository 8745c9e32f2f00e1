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

void wearStyle(const uno::Reference<css::text::XTextCursor>& paragraph, std::int32_t number) {
    const auto* const known = std::find_if(styles.begin(), styles.end(),
                                           [&](const auto& each) { return each.first == number; });
    if (known == styles.end())
        throw office::Failure(office::FailureNumber::InvalidProcedureCall, "ParagraphFormat.Style",
                              fmt::format("There is no style {} here", number));
    const auto ends = as<css::text::XParagraphCursor>(paragraph);
    ends->gotoStartOfParagraph(false);
    ends->gotoEndOfParagraph(true);
    as<css::beans::XMultiPropertyStates>(paragraph)->setAllPropertiesToDefault();
    setProperty(paragraph, "BreakType", css::style::BreakType_NONE);
    setProperty(paragraph, "ParaStyleName", rtl::OUString::createFromAscii(known->second));
}

}  // namespace

void changeParagraph(const uno::Reference<css::text::XTextCursor>& paragraph,
                     const model::ParagraphChange& change) {
    if (change.style) wearStyle(paragraph, *change.style);
    if (change.breaksPageBefore)
        setProperty(paragraph, "BreakType",
                    *change.breaksPageBefore ? css::style::BreakType_PAGE_BEFORE
                                             : css::style::BreakType_NONE);
    if (change.alignment)
        setProperty(paragraph, "ParaAdjust",
                    static_cast<sal_Int16>(
                        adjustments.at(static_cast<std::size_t>(*change.alignment)).second));
    if (change.spaceBefore)
        setProperty(paragraph, "ParaTopMargin", hundredthMmOf(*change.spaceBefore));
    if (change.spaceAfter)
        setProperty(paragraph, "ParaBottomMargin", hundredthMmOf(*change.spaceAfter));
}

}  // namespace libreoffice::word
