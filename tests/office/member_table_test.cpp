#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "office/failure.h"
#include "office/member_table.h"
#include "office/model/model_object.h"

namespace {

using office::arg;
using office::CallArguments;
using office::Failure;
using office::FailureNumber;
using office::missing;
using office::Object;
using office::Value;

/// What a back end's own library throws.
struct ForeignError {};

/// Turns foreign errors into failures, and notes that it was asked.
struct Translating : office::model::Guard {
    Value run(const office::model::MemberUse& use,
              const std::function<Value()>& statement) override {
        guarded.emplace_back(use.member);
        try {
            return statement();
        } catch (const ForeignError&) {
            throw Failure(FailureNumber::ApplicationDefined, std::string(use.member), "translated");
        }
    }

    std::vector<std::string> guarded;
};

/// A small object with a member of each sort.
class Lamp : public office::model::ModelObject<Lamp> {
public:
    using ModelObject::ModelObject;

    static const office::MemberTable<Lamp>& members() {
        static const auto table =
            office::MemberTable<Lamp>("Lamp")
                .property("Name", &Lamp::readName, &Lamp::writeName)
                .property("Serial", [](Lamp&, const CallArguments&) { return Value(17); })
                .property("Level", {"Bulb"}, &Lamp::readLevel, &Lamp::writeLevel)
                .method("Blink", {"Times", "Slowly", "Colour"}, &Lamp::blink)
                .method("Break", {},
                        [](Lamp&, const CallArguments&) -> Value { throw ForeignError(); });
        return table;
    }

private:
    Value readName() { return name_; }
    void writeName(const Value& name) { name_ = name.toText(); }
    Value readLevel(const CallArguments& arguments) {
        return levels_.at(static_cast<std::size_t>(arguments.at(0).toLong()));
    }
    void writeLevel(const CallArguments& arguments, const Value& level) {
        levels_.at(static_cast<std::size_t>(arguments.at(0).toLong())) = level.toLong();
    }
    Value blink(const CallArguments& arguments) {
        return arguments.at(0).toText() + "/" + (arguments.has(1) ? "given" : "left out") + "/" +
               arguments.at(2, "white").toText();
    }

    std::string name_ = "Desk";
    std::vector<std::int32_t> levels_ = {0, 0, 0};
};

class MemberTableTest : public testing::Test {
protected:
    std::shared_ptr<Translating> guard = std::make_shared<Translating>();
    Object object = office::model::makeObject<Lamp>(guard);

    /// The failure that a statement ends in.
    template <class Statement>
    static Failure failureOf(Statement&& statement) {
        try {
            statement();
        } catch (const Failure& failure) {
            return failure;
        }
        return Failure(0, "", "no failure");
    }
};

TEST_F(MemberTableTest, FindsMembersWhateverTheirCase) {
    object.put("NAME", "Floor");
    EXPECT_EQ(object.get("name").toText(), "Floor");
    EXPECT_EQ(object.typeName(), "Lamp");
}

TEST_F(MemberTableTest, TakesThePropertysArgumentsApartFromItsValue) {
    object.put("Level", 2, 80);
    EXPECT_EQ(object.get("Level", 2).toLong(), 80);
    EXPECT_EQ(object.get("Level", 1).toLong(), 0);
}

TEST_F(MemberTableTest, SortsNamedArgumentsIntoTheirPlaces) {
    EXPECT_EQ(object.call("Blink", 3, arg("colour", "red")).toText(), "3/left out/red");
    EXPECT_EQ(object.call("Blink", arg("Slowly", true), arg("Times", 1)).toText(), "1/given/white");
    EXPECT_EQ(object.call("Blink", 1, missing, "blue").toText(), "1/left out/blue");
}

TEST_F(MemberTableTest, NamesClassAndMemberOfWhatItRefuses) {
    const std::tuple<std::function<void()>, FailureNumber, const char*> refusals[] = {
        {[&] { object.get("Weight"); }, FailureNumber::NoSuchMember, "Lamp.Weight"},
        {[&] { object.put("Weight", 1); }, FailureNumber::NoSuchMember, "Lamp.Weight"},
        {[&] { object.put("Serial", 18); }, FailureNumber::NoSuchMember, "Lamp.Serial"},
        {[&] { object.call("Blink", 1, arg("Speed", 2)); }, FailureNumber::NoSuchNamedArgument,
         "Lamp.Blink"},
        {[&] { object.call("Blink", 1, 2, 3, 4); }, FailureNumber::WrongArgumentCount,
         "Lamp.Blink"},
        {[&] { object.call("Blink"); }, FailureNumber::WrongArgumentCount, "Lamp.Blink"},
        {[&] { object.put("Name"); }, FailureNumber::WrongArgumentCount, "put"},
    };
    for (const auto& [statement, number, source] : refusals) {
        const Failure failure = failureOf(statement);
        EXPECT_TRUE(failure.is(number)) << source << ": " << failure.number();
        EXPECT_EQ(failure.source(), source);
    }
}

TEST_F(MemberTableTest, RunsEveryCallThroughTheGuard) {
    object.get("Name");
    object.put("Name", "x");
    object.call("Blink", 1);
    EXPECT_EQ(guard->guarded, (std::vector<std::string>{"Name", "Name", "Blink"}));
    const Failure failure = failureOf([&] { object.call("Break"); });
    EXPECT_EQ(failure.description(), "translated");
}

}  // namespace
