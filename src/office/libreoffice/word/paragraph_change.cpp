#include "office/libreoffice/word/paragraph_change.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/beans/XMultiPropertyStates.hpp>
#include <com/sun/star/style/BreakType.hpp>
#include <com/sun/star/style/ParagraphAdjust.hpp>
#include <com/sun/star/text/XParagraphCursor.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

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

/// What a change comes to, in order of the names.
class Properties {
public:
    template <class Type>
    void add(const char* name, const Type& value) {
        names_.push_back(rtl::OUString::createFromAscii(name));
        values_.emplace_back(value);
    }
    /// In one call, which is one step for the user to take back.
    void set(const uno::Reference<css::text::XTextCursor>& paragraph) const {
        const auto count = static_cast<sal_Int32>(names_.size());
        as<css::beans::XMultiPropertySet>(paragraph)->setPropertyValues({names_.data(), count},
                                                                        {values_.data(), count});
    }

private:
    std::vector<rtl::OUString> names_;
    std::vector<uno::Any> values_;
};

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
    Properties properties;
    if (change.breaksPageBefore || change.style)
        properties.add("BreakType", change.breaksPageBefore.value_or(false)
                                        ? css::style::BreakType_PAGE_BEFORE
                                        : css::style::BreakType_NONE);
    // The one look that LibreOffice doesn't forget. Ahead of the style, which may bring its own.
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
    properties.set(paragraph);
}

}  // namespace libreoffice::word
