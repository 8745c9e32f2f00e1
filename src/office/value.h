#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "office/automation.h"

namespace office {

/// An argument left out on purpose, so that the application takes its default.
struct Missing {
    bool operator==(const Missing&) const = default;
};
inline constexpr Missing missing{};

/// A cheap handle to an object of an application, or to nothing. Copying it copies no object; the
/// last handle lets go.
///
/// `get`, `put` and `call` throw `Failure`: 91 on nothing, otherwise what the member raises.
///
///     slides.call("Add", n + 1, 11);
///     books.call("Open", arg("FileName", path));
///     range.put("NumberFormat", "@");
class Object {
public:
    Object() = default;
    explicit Object(std::shared_ptr<Automation> target) : target_(std::move(target)) {}

    [[nodiscard]] bool isNothing() const { return target_ == nullptr; }
    explicit operator bool() const { return target_ != nullptr; }

    /// "Nothing" for nothing.
    [[nodiscard]] std::string typeName() const;

    template <class... Args>
    Value get(std::string_view member, const Args&... args) const;

    /// The last argument is the value, those ahead of it are the property's.
    template <class... Args>
    void put(std::string_view member, const Args&... argsThenValue) const;

    template <class... Args>
    Value call(std::string_view member, const Args&... args) const;

    void release() { target_.reset(); }

    [[nodiscard]] const std::shared_ptr<Automation>& target() const { return target_; }
    /// The same handle target. Two look-ups of one object may give two targets.
    bool operator==(const Object&) const = default;

private:
    [[nodiscard]] Automation& required(std::string_view member) const;

    std::shared_ptr<Automation> target_;
};

class Table;

/// What travels to and from an application. The conversions follow the rules of automation: true is
/// -1 as a number, halves are rounded to the even neighbour, a text that is a number converts,
/// anything else is `Failure` 13.
class Value {
public:
    Value() = default;
    Value(Missing) : held_(missing) {}                     // NOLINT(google-explicit-constructor)
    Value(bool value) : held_(value) {}                    // NOLINT(google-explicit-constructor)
    Value(std::int32_t value) : held_(value) {}            // NOLINT(google-explicit-constructor)
    Value(double value) : held_(value) {}                  // NOLINT(google-explicit-constructor)
    Value(std::string value) : held_(std::move(value)) {}  // NOLINT(google-explicit-constructor)
    Value(std::string_view value)
        : held_(std::string(value)) {}                       // NOLINT(google-explicit-constructor)
    Value(const char* value) : held_(std::string(value)) {}  // NOLINT(google-explicit-constructor)
    Value(Object value) : held_(std::move(value)) {}         // NOLINT(google-explicit-constructor)
    Value(Table value);                                      // NOLINT(google-explicit-constructor)

    [[nodiscard]] bool isEmpty() const { return std::holds_alternative<std::monostate>(held_); }
    [[nodiscard]] bool isMissing() const { return std::holds_alternative<Missing>(held_); }
    [[nodiscard]] bool isBool() const { return std::holds_alternative<bool>(held_); }
    [[nodiscard]] bool isInteger() const { return std::holds_alternative<std::int32_t>(held_); }
    [[nodiscard]] bool isDouble() const { return std::holds_alternative<double>(held_); }
    [[nodiscard]] bool isNumber() const { return isInteger() || isDouble(); }
    [[nodiscard]] bool isText() const { return std::holds_alternative<std::string>(held_); }
    [[nodiscard]] bool isObject() const { return std::holds_alternative<Object>(held_); }
    [[nodiscard]] bool isTable() const {
        return std::holds_alternative<std::shared_ptr<const Table>>(held_);
    }
    /// Empty, or an empty text: what an empty cell compares equal to.
    [[nodiscard]] bool isBlank() const;

    [[nodiscard]] bool toBool() const;
    [[nodiscard]] std::int32_t toLong() const;
    [[nodiscard]] double toDouble() const;
    [[nodiscard]] std::string toText() const;
    /// The object held; empty gives nothing.
    [[nodiscard]] Object toObject() const;
    /// The table held; a single value comes as a table of one cell.
    [[nodiscard]] Table toTable() const;

    /// Members of the object held, so that a road through an object model reads as one line.
    /// `Failure` 424 if this is not an object.
    template <class... Args>
    Value get(std::string_view member, const Args&... args) const {
        return requiredObject(member).get(member, args...);
    }
    template <class... Args>
    void put(std::string_view member, const Args&... argsThenValue) const {
        requiredObject(member).put(member, argsThenValue...);
    }
    template <class... Args>
    Value call(std::string_view member, const Args&... args) const {
        return requiredObject(member).call(member, args...);
    }

private:
    [[nodiscard]] const Object& requiredObject(std::string_view member) const;

    std::variant<std::monostate, Missing, bool, std::int32_t, double, std::string, Object,
                 std::shared_ptr<const Table>>
        held_;
};

/// A block of cells, addressed from 1 as ranges are.
class Table {
public:
    Table(std::size_t rows, std::size_t columns)
        : rows_(rows),
          columns_(columns),
          cells_(rows * columns) {}

    [[nodiscard]] std::size_t rows() const { return rows_; }
    [[nodiscard]] std::size_t columns() const { return columns_; }
    /// `Failure` 9 outside the block.
    [[nodiscard]] const Value& at(std::size_t row, std::size_t column) const {
        return cells_[index(row, column)];
    }
    [[nodiscard]] Value& at(std::size_t row, std::size_t column) {
        return cells_[index(row, column)];
    }

private:
    [[nodiscard]] std::size_t index(std::size_t row, std::size_t column) const;

    std::size_t rows_;
    std::size_t columns_;
    std::vector<Value> cells_;
};

}  // namespace office

#include "office/arguments.h"  // IWYU pragma: export
