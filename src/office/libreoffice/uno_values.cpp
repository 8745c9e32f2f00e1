#include "office/libreoffice/uno_values.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <osl/file.hxx>

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

NamedValues::NamedValues(const uno::Reference<uno::XInterface>& object,
                         const std::vector<rtl::OUString>& names) {
    for (const rtl::OUString& name : names) all_[name];
    std::vector<rtl::OUString> sorted;
    for (const auto& [name, value] : all_) sorted.push_back(name);
    const auto values =
        as<css::beans::XMultiPropertySet>(object)->getPropertyValues(sequenceOf(sorted));
    const uno::Any* value = values.getConstArray();
    for (auto& each : all_) each.second = *value++;
}

void NamedValues::applyTo(const uno::Reference<uno::XInterface>& object) const {
    if (all_.empty()) return;
    std::vector<rtl::OUString> names;
    std::vector<uno::Any> values;
    for (const auto& [name, value] : all_) {
        names.push_back(name);
        values.push_back(value);
    }
    as<css::beans::XMultiPropertySet>(object)->setPropertyValues(sequenceOf(names),
                                                                 sequenceOf(values));
}

}  // namespace libreoffice
