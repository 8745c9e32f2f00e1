#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace office {

/// The numbers of the failures that the port itself raises, as the automation world knows them.
enum class FailureNumber : std::int32_t {
    InvalidProcedureCall = 5,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    PermissionDenied = 70,
    PathFileAccess = 75,
    ObjectNotSet = 91,
    ObjectRequired = 424,
    NoSuchMember = 438,
    NoSuchNamedArgument = 448,
    WrongArgumentCount = 450,
    ApplicationDefined = 1004,
    /// The object stands for something that has gone: a closed document, a deleted shape, an
    /// application other than Excel that has ended by itself.
    Disconnected = static_cast<std::int32_t>(0x80010108),
};

/// Something that the application refuses: `Failure` 1004.
[[noreturn]] void refuse(const std::string& source, const std::string& why);

/// What every failing call into an office application throws. `source` names the class and member
/// that failed
/// ("Worksheet.Name"); `what()` is the description alone.
class Failure : public std::runtime_error {
public:
    Failure(FailureNumber number, std::string source, const std::string& description);
    Failure(std::int32_t number, std::string source, const std::string& description);

    [[nodiscard]] std::int32_t number() const { return number_; }
    [[nodiscard]] bool is(FailureNumber number) const {
        return number_ == static_cast<std::int32_t>(number);
    }
    [[nodiscard]] const std::string& source() const { return source_; }
    [[nodiscard]] std::string description() const { return what(); }
    /// The description with a full stop.
    [[nodiscard]] std::string sentence() const;
    /// Made by `refuse`: the description is a sentence of the program's own that says it all.
    [[nodiscard]] bool isRefusal() const { return isRefusal_; }

private:
    friend void refuse(const std::string& source, const std::string& why);

    std::int32_t number_;
    std::string source_;
    bool isRefusal_ = false;
};

/// Excel has gone, or the one suite that all applications are of: its process died, or the
/// connection to it broke. No failure pattern but plain code handles this one, since every further
/// call would fail the same way; it ends the run with a report.
class SuiteLost : public Failure {
public:
    explicit SuiteLost(const std::string& description);
};

/// A call that can't be carried out as it is made: `Failure` 5.
[[noreturn]] void refuseCall(const std::string& source, const std::string& why);

}  // namespace office
