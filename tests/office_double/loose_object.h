#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "office_double/double_object.h"

namespace office_double {

/// An object whose members are listed where it is made: collections, and small groups of properties
/// such as a shadow or a font. The functions may refer to fields of the parent, since nothing is
/// called once the parent has gone.
class LooseObject : public DoubleObject {
public:
    using Table = office::MemberTable<LooseObject>;

    LooseObject(Owner parent, std::string className)
        : DoubleObject(parent),
          members(std::move(className)) {}

    [[nodiscard]] std::string typeName() const override { return members.className(); }
    Value read(std::string_view member, const Arguments& arguments) override {
        return members.read(*this, member, arguments);
    }
    void write(std::string_view member, const Arguments& arguments, const Value& value) override {
        members.write(*this, member, arguments, value);
    }

    /// Properties that stand for a field of the parent.
    LooseObject& number(std::string_view member, double& field);
    LooseObject& whole(std::string_view member, std::int32_t& field);
    LooseObject& text(std::string_view member, std::string& field);
    LooseObject& triState(std::string_view member, bool& field);
    /// A property that can only be read.
    LooseObject& reads(std::string_view member, std::function<Value()> read);
    /// A property with one argument, such as `Item` of a collection.
    LooseObject& item(std::string_view member, std::string argumentName,
                      std::function<Value(const Value&)> read,
                      std::function<void(const Value&, const Value&)> write);
    LooseObject& method(std::string_view member, std::vector<std::string> argumentNames,
                        std::function<Value(const CallArguments&)> run);

    Table members;
};

std::shared_ptr<LooseObject> looseObject(DoubleObject& parent, std::string className);

using Items = std::vector<std::shared_ptr<DoubleObject>>;

/// `Count` and `Item` of what `list` gives at the moment of the call.
std::shared_ptr<LooseObject> collection(DoubleObject& parent, std::string className,
                                        std::function<Items()> list);

template <class Item>
Items itemsOf(const std::vector<std::shared_ptr<Item>>& items) {
    return Items(items.begin(), items.end());
}

inline Value valueOf(const std::shared_ptr<DoubleObject>& object) {
    return object ? Value(Object(object)) : Value();
}

}  // namespace office_double
