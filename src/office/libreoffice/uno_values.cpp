#include "office/libreoffice/uno_values.h"

#include <osl/file.hxx>

#include <algorithm>
#include <filesystem>

namespace libreoffice {

rtl::OUString toUno(std::string_view text) {
    return rtl::OUString::fromUtf8(rtl::OString(text.data(), static_cast<sal_Int32>(text.size())));
}

std::string fromUno(const rtl::OUString& text) {
    const rtl::OString utf8 = text.toUtf8();
    return {utf8.getStr(), static_cast<std::size_t>(utf8.getLength())};
}

std::string_view bytesOf(const uno::Sequence<sal_Int8>& bytes) {
    return {reinterpret_cast<const char*>(bytes.getConstArray()),
            static_cast<std::size_t>(bytes.getLength())};
}

rtl::OUString fileUrl(std::string_view path) {
    if (path.find("://") != std::string_view::npos) return toUno(path);
    const std::string absolute = std::filesystem::absolute(path).lexically_normal().string();
    rtl::OUString url;
    osl::FileBase::getFileURLFromSystemPath(toUno(absolute), url);
    return url;
}

std::string pathOfUrl(const rtl::OUString& url) {
    rtl::OUString path;
    if (osl::FileBase::getSystemPathFromFileURL(url, path) != osl::FileBase::E_None)
        return fromUno(url);
    return fromUno(path);
}

uno::Sequence<rtl::OUString> namesOf(const std::vector<std::string_view>& sorted) {
    uno::Sequence<rtl::OUString> names(static_cast<sal_Int32>(sorted.size()));
    std::transform(sorted.begin(), sorted.end(), names.getArray(), toUno);
    return names;
}

uno::Sequence<css::beans::PropertyValue> propertyValues(
    std::initializer_list<std::pair<const char*, uno::Any>> values) {
    uno::Sequence<css::beans::PropertyValue> sequence(static_cast<sal_Int32>(values.size()));
    auto* target = sequence.getArray();
    for (const auto& [name, value] : values) {
        target->Name = rtl::OUString::createFromAscii(name);
        target->Value = value;
        ++target;
    }
    return sequence;
}

uno::Any propertyAny(const uno::Reference<uno::XInterface>& object, const char* name) {
    return as<css::beans::XPropertySet>(object)->getPropertyValue(
        rtl::OUString::createFromAscii(name));
}

void setProperty(const uno::Reference<uno::XInterface>& object, const char* name,
                 const uno::Any& value) {
    as<css::beans::XPropertySet>(object)->setPropertyValue(rtl::OUString::createFromAscii(name),
                                                           value);
}

}  // namespace libreoffice
