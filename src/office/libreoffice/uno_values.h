#pragma once

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Reference.hxx>
#include <com/sun/star/uno/Sequence.hxx>
#include <rtl/ustring.hxx>

#include <cstdint>
#include <initializer_list>
#include <map>
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

/// The elements as a call takes them.
template <class Type>
[[nodiscard]] uno::Sequence<Type> sequenceOf(const std::vector<Type>& elements) {
    return {elements.data(), static_cast<sal_Int32>(elements.size())};
}

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

/// Properties by their names, which may come in any order: calls for several demand them sorted.
class NamedValues {
public:
    NamedValues() = default;
    NamedValues(std::initializer_list<std::pair<const rtl::OUString, uno::Any>> values)
        : all_(values) {}
    /// What an object says of them, in one call. What it doesn't know is void.
    NamedValues(const uno::Reference<uno::XInterface>& object,
                const std::vector<rtl::OUString>& names);

    /// `std::out_of_range` for a name that is not among them.
    [[nodiscard]] const uno::Any& any(const rtl::OUString& name) const { return all_.at(name); }
    /// A void or differently typed one gives `otherwise`.
    template <class Type>
    [[nodiscard]] Type get(const rtl::OUString& name, Type otherwise = Type()) const {
        any(name) >>= otherwise;
        return otherwise;
    }
    [[nodiscard]] auto begin() const { return all_.begin(); }
    [[nodiscard]] auto end() const { return all_.end(); }

    template <class Type>
    void add(const rtl::OUString& name, const Type& value) {
        all_[name] = uno::Any(value);
    }
    /// In one call, which is one step for a user to take back; in none if there is nothing to set.
    void applyTo(const uno::Reference<uno::XInterface>& object) const;

    friend bool operator==(const NamedValues&, const NamedValues&) = default;

private:
    std::map<rtl::OUString, uno::Any> all_;
};

}  // namespace libreoffice
