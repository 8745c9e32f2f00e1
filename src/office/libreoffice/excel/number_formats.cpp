#include "office/libreoffice/excel/number_formats.h"

#include <com/sun/star/lang/Locale.hpp>
#include <com/sun/star/util/NumberFormat.hpp>
#include <com/sun/star/util/XNumberFormatTypes.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>

#include <utility>

namespace libreoffice::excel {

namespace {

const css::lang::Locale english("en", "US", "");

}  // namespace

NumberFormats::NumberFormats(uno::Reference<css::frame::XModel> model) : model_(std::move(model)) {}

const uno::Reference<css::util::XNumberFormats>& NumberFormats::formats() {
    if (!formats_.is())
        formats_ = as<css::util::XNumberFormatsSupplier>(model_)->getNumberFormats();
    return formats_;
}

const NumberFormats::Format& NumberFormats::format(std::int32_t key) {
    if (const auto known = known_.find(key); known != known_.end()) return known->second;
    const auto properties = formats()->getByKey(key);
    sal_Int16 type = 0;
    rtl::OUString code;
    properties->getPropertyValue("Type") >>= type;
    properties->getPropertyValue("FormatString") >>= code;
    Format read{Kind::Other, fromUno(code)};
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
