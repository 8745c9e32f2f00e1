#include <benchmark/benchmark.h>

#include "office/scripted.h"

namespace {

struct NoGuard {
    template <class Self, class Statement>
    static office::Value run(Self&, std::string_view, Statement&& statement) {
        return statement();
    }
};

class Cell : public office::Scripted<Cell, NoGuard> {
public:
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
    const office::Object cell(std::make_shared<Cell>());
    for (auto _ : state) benchmark::DoNotOptimize(cell.get("Offset", 1, 2));
}
BENCHMARK(aMemberIsReadByPosition);

static void aMemberIsReadByName(benchmark::State& state) {
    const office::Object cell(std::make_shared<Cell>());
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            cell.get("offset", office::arg("Column", 2), office::arg("Row", 1)));
    }
}
BENCHMARK(aMemberIsReadByName);
