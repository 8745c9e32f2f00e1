#pragma once

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Reference.hxx>
#include <com/sun/star/uno/Sequence.hxx>
#include <rtl/ustring.hxx>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/colour.h"

namespace libreoffice {

namespace css = com::sun::star;
namespace uno = com::sun::star::uno;

/// Text between UTF-8 and UNO's UTF-16.
[[nodiscard]] rtl::OUString toUno(std::string_view text);
[[nodiscard]] std::string fromUno(const rtl::OUString& text);
/// As long as the sequence lasts unchanged.
[[nodiscard]] std::string_view bytesOf(const uno::Sequence<sal_Int8>& bytes);

/// A file path as the URL that UNO takes, and back. A path that is already a URL stays. A relative
/// path is made absolute.
[[nodiscard]] rtl::OUString fileUrl(std::string_view path);
[[nodiscard]] std::string pathOfUrl(const rtl::OUString& url);

using office::swapRedAndBlue;

/// The names of properties as calls for several of them take them, which is in order.
[[nodiscard]] uno::Sequence<rtl::OUString> namesOf(const std::vector<std::string_view>& sorted);

/// {"Hidden", true}, ... as the argument list of a UNO call.
[[nodiscard]] uno::Sequence<css::beans::PropertyValue> propertyValues(
    std::initializer_list<std::pair<const char*, uno::Any>> values);

/// The interface of an object; `css::uno::RuntimeException` if the object hasn't got it.
template <class Interface, class From>
[[nodiscard]] uno::Reference<Interface> as(const uno::Reference<From>& object) {
    return uno::Reference<Interface>(object, uno::UNO_QUERY_THROW);
}
/// The interface of an object, or an empty reference.
template <class Interface, class From>
[[nodiscard]] uno::Reference<Interface> tryAs(const uno::Reference<From>& object) {
    return uno::Reference<Interface>(object, uno::UNO_QUERY);
}

[[nodiscard]] uno::Any propertyAny(const uno::Reference<uno::XInterface>& object, const char* name);
void setProperty(const uno::Reference<uno::XInterface>& object, const char* name,
                 const uno::Any& value);

/// Reads a property; a void or differently typed one gives `otherwise`.
template <class Type>
[[nodiscard]] Type property(const uno::Reference<uno::XInterface>& object, const char* name,
                            Type otherwise = Type()) {
    propertyAny(object, name) >>= otherwise;
    return otherwise;
}
template <class Type>
void setProperty(const uno::Reference<uno::XInterface>& object, const char* name,
                 const Type& value) {
    setProperty(object, name, uno::Any(value));
}

}  // namespace libreoffice
