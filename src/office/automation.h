#pragma once

#include <string>
#include <string_view>

namespace office {

class Arguments;
class Value;

/// One object of an office application, reached by the names of its members. This is what an
/// adapter implements; the core holds it through `Object`.
///
/// Member names are compared without regard to case, as automation does. Every member function
/// throws `Failure` when the member does not exist, when an argument does not fit, or when the
/// application refuses; the object is then as it was unless the member's own documentation says
/// otherwise. `SuiteLost` means that Excel has gone, or the one process that all applications live
/// in: the run is at its end. Of another application that has ended by itself each call is a
/// `Failure` Disconnected, and the user may start it again.
class Automation {
public:
    Automation() = default;
    Automation(const Automation&) = delete;
    Automation& operator=(const Automation&) = delete;
    virtual ~Automation() = default;

    /// The class name that automation reports: "Worksheet", "Chart", "Range", "Shape", ...
    [[nodiscard]] virtual std::string typeName() const = 0;

    /// Reads a property, which may take arguments: get("Cells", {1, 15}).
    virtual Value get(std::string_view member, const Arguments& arguments) = 0;

    /// Writes a property; arguments are those of the property, without the value.
    virtual void put(std::string_view member, const Arguments& arguments, const Value& value) = 0;

    /// Runs a method. A method without a result gives the empty value.
    virtual Value call(std::string_view member, const Arguments& arguments) = 0;
};

}  // namespace office
