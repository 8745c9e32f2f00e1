// What an item of a batch costs, and what the least costs that any program must do for it: both in
// the same run, in turns, on one suite. Once with the slides in the suite, once in a file.
//
//     bench-batch [ITEMS ...]      default 10 50 200

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <vector>

#include "bare_batch.h"
#include "measured_suite.h"
#include "murvane_batch.h"

namespace {

constexpr int turns = 3;

struct Sizes {
    bench::BatchCost inSuite;
    bench::BatchCost asFile;
    double bareSecondsAnItem = 0;
};

double middleOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The middle of some turns each, one after the other, so that a busy moment of the machine hits
/// both sides alike.
Sizes measure(bench::MeasuredSuite& measured, const std::filesystem::path& folder, int items) {
    const std::string book = (folder / fmt::format("charts-{}.xlsx", items)).string();
    const std::string make = fmt::format("\"{}\" {} \"{}\"", MAKE_WORKBOOK, items, book);
    if (std::system(make.c_str()) != 0) throw std::runtime_error("no workbook could be made");

    Sizes sizes;
    std::vector<double> bare;
    std::vector<double> inSuite;
    std::vector<double> asFile;
    const auto run = [&](bench::Deck where, std::vector<double>& times) {
        const std::filesystem::path output = folder / "murvane.pptx";
        std::filesystem::remove(output);
        const auto cost = bench::runMurvaneBatch(*measured.suite, where, book, output.string());
        times.push_back(cost.seconds);
        return cost;
    };
    for (int turn = 0; turn < turns; ++turn) {
        bare.push_back(bench::runBareBatch(*measured.connection, book,
                                           (folder / "bare.pptx").string(), items) /
                       items);
        sizes.inSuite = run(bench::Deck::InTheSuite, inSuite);
        sizes.asFile = run(bench::Deck::AsFile, asFile);
    }
    sizes.bareSecondsAnItem = middleOf(bare);
    sizes.inSuite.seconds = middleOf(inSuite);
    sizes.asFile.seconds = middleOf(asFile);
    return sizes;
}

/// What the last tenth of a batch's items costs over what the first tenth does, each by its middle.
double growthWithin(const std::vector<double>& secondsOfItems) {
    const auto tenth = static_cast<std::ptrdiff_t>(secondsOfItems.size() / 10 + 1);
    return middleOf({secondsOfItems.end() - tenth, secondsOfItems.end()}) /
           middleOf({secondsOfItems.begin(), secondsOfItems.begin() + tenth});
}

void print(int items, const char* where, const bench::BatchCost& cost, double bareSeconds) {
    fmt::print("{:5}  {:8}   {:7.1f} ms   {:7.1f} ms   {:5.2f}   {:8.1f}   {:6.2f} s   {:12.2f}\n",
               items, where, cost.secondsAnItem() * 1000, bareSeconds * 1000,
               cost.secondsAnItem() / bareSeconds, cost.callsAnItem(), cost.savingSeconds,
               growthWithin(cost.secondsOfItems));
}

int run(const std::vector<int>& counts) {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "murvane-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder could be made");
    const std::filesystem::path folder = pattern;

    bench::MeasuredSuite measured;
    measure(measured, folder, counts.front());  // warms the suite up
    fmt::print("items  slides in   an item   bare   ratio   calls an item   saving   last/first\n");
    std::vector<Sizes> all;
    for (const int items : counts) {
        all.push_back(measure(measured, folder, items));
        print(items, "suite", all.back().inSuite, all.back().bareSecondsAnItem);
        print(items, "file", all.back().asFile, all.back().bareSecondsAnItem);
    }
    fmt::print("An item of {} costs {:.2f} times an item of {}.\n", counts.back(),
               all.back().inSuite.secondsAnItem() / all.front().inSuite.secondsAnItem(),
               counts.front());
    fmt::print("Peak memory: {:.0f} MB here, {:.0f} MB in the suite.\n",
               bench::peakMegabytesOf("self"), measured.peakMegabytes());
    std::filesystem::remove_all(folder);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<int> counts;
    for (int i = 1; i < argc; ++i) counts.push_back(std::max(1, std::atoi(argv[i])));
    if (counts.empty()) counts = {10, 50, 200};
    try {
        return run(counts);
    } catch (const std::exception& error) {
        fmt::print(stderr, "bench-batch: {}\n", error.what());
        return 1;
    }
}
