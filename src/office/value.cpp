#include "office/value.h"

#include <fmt/format.h>

#include <cmath>
#include <limits>

#include "office/failure.h"
#include "office/text.h"

namespace office {

namespace {

[[noreturn]] void typeMismatch(std::string_view wanted) {
    throw Failure(FailureNumber::TypeMismatch, "Value",
                  fmt::format("Type mismatch: this is not {}", wanted));
}

}  // namespace

std::string Object::typeName() const {
    return target_ ? target_->typeName() : "Nothing";
}

Automation& Object::required(std::string_view member) const {
    if (!target_) {
        throw Failure(
            FailureNumber::ObjectNotSet, std::string(member),
            fmt::format("Object variable not set: there is nothing to ask for \"{}\"", member));
    }
    return *target_;
}

Value::Value(Table value) : held_(std::make_shared<const Table>(std::move(value))) {}

bool Value::isBlank() const {
    if (isEmpty()) return true;
    const auto* text = std::get_if<std::string>(&held_);
    return text != nullptr && text->empty();
}

bool Value::toBool() const {
    if (const auto* flag = std::get_if<bool>(&held_)) return *flag;
    if (const auto* text = std::get_if<std::string>(&held_)) {
        const std::string word = lowerCase(trim(*text));
        if (word == "true") return true;
        if (word == "false") return false;
    }
    return toDouble() != 0;
}

std::int32_t Value::toLong() const {
    if (const auto* number = std::get_if<std::int32_t>(&held_)) return *number;
    const double rounded = std::nearbyint(toDouble());
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
          rounded <= std::numeric_limits<std::int32_t>::max())) {
        typeMismatch("a 32-bit number");
    }
    return static_cast<std::int32_t>(rounded);
}

double Value::toDouble() const {
    if (isEmpty()) return 0;
    if (const auto* flag = std::get_if<bool>(&held_)) return *flag ? -1 : 0;
    if (const auto* number = std::get_if<std::int32_t>(&held_)) return *number;
    if (const auto* number = std::get_if<double>(&held_)) return *number;
    if (const auto* text = std::get_if<std::string>(&held_)) {
        if (const auto number = numberOf(*text)) return *number;
    }
    typeMismatch("a number");
}

std::string Value::toText() const {
    if (isEmpty()) return {};
    if (const auto* flag = std::get_if<bool>(&held_)) return *flag ? "True" : "False";
    if (const auto* number = std::get_if<std::int32_t>(&held_)) return fmt::format("{}", *number);
    if (const auto* number = std::get_if<double>(&held_))
        return fmt::format("{}", *number == 0 ? 0.0 : *number);
    if (const auto* text = std::get_if<std::string>(&held_)) return *text;
    typeMismatch("a text");
}

Object Value::toObject() const {
    if (isEmpty()) return {};
    if (const auto* object = std::get_if<Object>(&held_)) return *object;
    throw Failure(FailureNumber::ObjectRequired, "Value", "Object required");
}

Table Value::toTable() const {
    if (const auto* table = std::get_if<std::shared_ptr<const Table>>(&held_)) return **table;
    Table single(1, 1);
    single.at(1, 1) = *this;
    return single;
}

const Object& Value::requiredObject(std::string_view member) const {
    if (const auto* object = std::get_if<Object>(&held_)) return *object;
    throw Failure(FailureNumber::ObjectRequired, std::string(member),
                  fmt::format("Object required: there is nothing to ask for \"{}\"", member));
}

std::size_t Table::index(std::size_t row, std::size_t column) const {
    if (row < 1 || row > rows_ || column < 1 || column > columns_) {
        throw Failure(FailureNumber::SubscriptOutOfRange, "Table",
                      fmt::format("Subscript out of range: cell ({}, {}) of a {} x {} table", row,
                                  column, rows_, columns_));
    }
    return (row - 1) * columns_ + (column - 1);
}

Value Arguments::takeLast() {
    if (positional_.empty()) {
        throw Failure(FailureNumber::WrongArgumentCount, "put",
                      "A property is written with a value");
    }
    Value last = std::move(positional_.back());
    positional_.pop_back();
    return last;
}

}  // namespace office
