#include "office/libreoffice/excel/number_formats.h"

#include <com/sun/star/lang/Locale.hpp>
#include <com/sun/star/util/NumberFormat.hpp>
#include <com/sun/star/util/XNumberFormatTypes.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>

#include <algorithm>
#include <cctype>
#include <utility>

namespace libreoffice::excel {

namespace {

const css::lang::Locale english("en", "US", "");

constexpr std::int32_t noColour = -1;

/// Whether the code has a word in brackets that isn't a currency's or a letter for elapsed time.
bool namesColour(const std::string& code) {
    constexpr std::size_t longestTime = 2;
    for (std::size_t at = code.find('['); at != std::string::npos; at = code.find('[', at + 1)) {
        const std::size_t end = std::min(code.find(']', at), code.size());
        const bool isWord =
            at + 1 < code.size() && std::isalpha(static_cast<unsigned char>(code[at + 1]));
        if (isWord && end - at - 1 > longestTime) return true;
    }
    return false;
}

}  // namespace

NumberFormats::NumberFormats(const Connection& connection, uno::Reference<css::frame::XModel> model)
    : connection_(connection),
      model_(std::move(model)) {}

const uno::Reference<css::util::XNumberFormats>& NumberFormats::formats() {
    if (!formats_.is())
        formats_ = as<css::util::XNumberFormatsSupplier>(model_)->getNumberFormats();
    return formats_;
}

NumberFormats::Format& NumberFormats::format(std::int32_t key) {
    if (const auto known = known_.find(key); known != known_.end()) return known->second;
    const auto properties = formats()->getByKey(key);
    sal_Int16 type = 0;
    rtl::OUString code;
    properties->getPropertyValue("Type") >>= type;
    properties->getPropertyValue("FormatString") >>= code;
    // Each language has a word of its own for it.
    bool isGeneral = false;
    properties->getPropertyValue("StandardFormat") >>= isGeneral;
    if (isGeneral) code = "General";
    Format read{Kind::Other, fromUno(code), {}};
    if ((type & css::util::NumberFormat::LOGICAL) != 0) read.kind = Kind::Boolean;
    if ((type & css::util::NumberFormat::TEXT) != 0) read.kind = Kind::Text;
    return known_.emplace(key, std::move(read)).first->second;
}

NumberFormats::Kind NumberFormats::kindOf(std::int32_t key) {
    return format(key).kind;
}

std::string NumberFormats::codeOf(std::int32_t key) {
    return format(key).code;
}

std::int32_t NumberFormats::colourOf(double number, std::int32_t key, std::int32_t otherwise) {
    Format& used = format(key);
    if (!namesColour(used.code)) return otherwise;
    const bool compares = used.code.find_first_of("<>=") != std::string::npos;
    const double section = compares ? number : static_cast<double>((number > 0) - (number < 0));
    const auto [colour, isNew] = used.colours.try_emplace(section, noColour);
    if (isNew) {
        if (!formatter_.is()) {
            formatter_ = as<css::util::XNumberFormatter>(
                connection_.create("com.sun.star.util.NumberFormatter"));
            formatter_->attachNumberFormatsSupplier(as<css::util::XNumberFormatsSupplier>(model_));
        }
        colour->second = formatter_->queryColorForNumber(key, number, noColour);
    }
    return colour->second == noColour ? otherwise : swapRedAndBlue(colour->second);
}

std::int32_t NumberFormats::keyFor(const std::string& code) {
    const rtl::OUString wanted = toUno(code);
    const sal_Int32 known = formats()->queryKey(wanted, english, false);
    return known >= 0 ? known : formats()->addNew(wanted, english);
}

std::int32_t NumberFormats::booleanKey() {
    if (booleanKey_ < 0) {
        booleanKey_ = as<css::util::XNumberFormatTypes>(formats())->getStandardFormat(
            css::util::NumberFormat::LOGICAL, css::lang::Locale());
    }
    return booleanKey_;
}

}  // namespace libreoffice::excel
