#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "office/value.h"

namespace support {

enum class CallKind { Get, Put, Call };

/// One call into an office application. Arguments are kept as text, so that a record holds no
/// object alive.
struct RecordedCall {
    CallKind kind = CallKind::Get;
    std::string className;
    std::string member;  ///< as the caller spelt it
    std::string arguments;
    std::string value;  ///< of a put

    /// As code would read: `Slides.Add(3, 11)`, `Worksheet.Name = "Sales"`, `Worksheet.Name`.
    [[nodiscard]] std::string text() const;
};

/// A value as code would write it: `"Sales"`, `3`, `True`, `Empty`, `<Range>`, `<20x10>`.
std::string literal(const office::Value& value);

/// The arguments in order, separated by ", "; named ones as `Name:=value`.
std::string literal(const office::Arguments& arguments);

/// Whether `pattern` means this member: "Chart.Export", or "Export" for that member of any class.
/// Case does not matter.
bool meansMember(std::string_view pattern, std::string_view className, std::string_view member);

/// The calls made so far, in order.
class CallLog {
public:
    void add(RecordedCall call) { calls_.push_back(std::move(call)); }
    void clear() { calls_.clear(); }

    [[nodiscard]] const std::vector<RecordedCall>& calls() const { return calls_; }
    [[nodiscard]] std::size_t count() const { return calls_.size(); }
    [[nodiscard]] std::size_t count(std::string_view member) const;
    [[nodiscard]] std::size_t count(std::string_view member, CallKind kind) const;
    /// The texts of the calls of one member.
    [[nodiscard]] std::vector<std::string> texts(std::string_view member) const;

private:
    std::vector<RecordedCall> calls_;
};

}  // namespace support
