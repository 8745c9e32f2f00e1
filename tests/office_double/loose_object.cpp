#include "office_double/loose_object.h"

#include <utility>

namespace office_double {

LooseObject& LooseObject::number(std::string_view member, double& field) {
    members.property(
        member, [&field](LooseObject&, const CallArguments&) { return Value(field); },
        [&field](LooseObject&, const CallArguments&, const Value& value) {
            field = value.toDouble();
        });
    return *this;
}

LooseObject& LooseObject::whole(std::string_view member, std::int32_t& field) {
    members.property(
        member, [&field](LooseObject&, const CallArguments&) { return Value(field); },
        [&field](LooseObject&, const CallArguments&, const Value& value) {
            field = value.toLong();
        });
    return *this;
}

LooseObject& LooseObject::text(std::string_view member, std::string& field) {
    members.property(
        member, [&field](LooseObject&, const CallArguments&) { return Value(field); },
        [&field](LooseObject&, const CallArguments&, const Value& value) {
            field = value.toText();
        });
    return *this;
}

LooseObject& LooseObject::triState(std::string_view member, bool& field) {
    members.property(
        member,
        [&field](LooseObject&, const CallArguments&) { return office_double::triState(field); },
        [&field](LooseObject&, const CallArguments&, const Value& value) {
            field = value.toBool();
        });
    return *this;
}

LooseObject& LooseObject::reads(std::string_view member, std::function<Value()> read) {
    members.property(
        member, [read = std::move(read)](LooseObject&, const CallArguments&) { return read(); });
    return *this;
}

LooseObject& LooseObject::item(std::string_view member, std::string argumentName,
                               std::function<Value(const Value&)> read,
                               std::function<void(const Value&, const Value&)> write) {
    members.property(
        member, {std::move(argumentName)},
        Table::Reader([read = std::move(read)](LooseObject&, const CallArguments& arguments) {
            return read(arguments.at(0));
        }),
        [write = std::move(write)](LooseObject&, const CallArguments& arguments,
                                   const Value& value) { write(arguments.at(0), value); });
    return *this;
}

LooseObject& LooseObject::method(std::string_view member, std::vector<std::string> argumentNames,
                                 std::function<Value(const CallArguments&)> run) {
    members.method(member, std::move(argumentNames),
                   [run = std::move(run)](LooseObject&, const CallArguments& arguments) {
                       return run(arguments);
                   });
    return *this;
}

std::shared_ptr<LooseObject> looseObject(DoubleObject& parent, std::string className) {
    return std::make_shared<LooseObject>(parent, std::move(className));
}

std::shared_ptr<LooseObject> collection(DoubleObject& parent, std::string className,
                                        std::function<Items()> list) {
    auto made = looseObject(parent, std::move(className));
    made->reads("Count", [list] { return count(list().size()); });
    made->method("Item", {"Index"}, [list](const CallArguments& arguments) {
        return valueOf(lookUp(list(), arguments.at(0), arguments.source()));
    });
    return made;
}

}  // namespace office_double
