#include <benchmark/benchmark.h>

#include "office/model/model_object.h"

namespace {

struct NoGuard : office::model::Guard {
    office::Value run(const office::model::MemberUse&,
                      const std::function<office::Value()>& statement) override {
        return statement();
    }
};

class Cell : public office::model::ModelObject<Cell> {
public:
    using ModelObject::ModelObject;

    static const office::MemberTable<Cell>& members() {
        static const auto table =
            office::MemberTable<Cell>("Cell").property("Offset", {"Row", "Column"}, &Cell::offset);
        return table;
    }

private:
    office::Value offset(const office::CallArguments& arguments) {
        return arguments.at(0).toLong() + arguments.at(1).toLong();
    }
};

}  // namespace

/// What the port itself costs: finding a member by its name and sorting its arguments in.
static void aMemberIsReadByPosition(benchmark::State& state) {
    const auto cell = office::model::makeObject<Cell>(std::make_shared<NoGuard>());
    for (auto _ : state) benchmark::DoNotOptimize(cell.get("Offset", 1, 2));
}
BENCHMARK(aMemberIsReadByPosition);

static void aMemberIsReadByName(benchmark::State& state) {
    const auto cell = office::model::makeObject<Cell>(std::make_shared<NoGuard>());
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            cell.get("offset", office::arg("Column", 2), office::arg("Row", 1)));
    }
}
BENCHMARK(aMemberIsReadByName);
