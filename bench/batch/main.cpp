// What an item of a batch costs, and what the least costs that any program must do for it: both in
// the same run, in turns, on one suite. Once with the slides in the suite, once in a file.
//
//     bench-batch [ITEMS ...]             default 10 50 200
//     bench-batch FORMAT [ITEMS ...]      editable, embedded or linked; default 60

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <map>
#include <string_view>
#include <vector>

#include "bare_batch.h"
#include "measured_suite.h"
#include "murvane_batch.h"

namespace {

constexpr int turns = 3;
/// What an item costs is the time from one to the next.
constexpr int fewest = 2;

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
Sizes measure(bench::MeasuredSuite& measured, const std::filesystem::path& folder, int items,
              const bench::MeasuredItems& what = {}) {
    const std::string book = (folder / fmt::format("items-{}.xlsx", items)).string();
    const std::string make =
        fmt::format("\"{}\" {} \"{}\" {}", MAKE_WORKBOOK, items, book, what.areRanges ? items : 0);
    if (std::system(make.c_str()) != 0) throw std::runtime_error("no workbook could be made");

    Sizes sizes;
    std::vector<double> bare;
    std::vector<double> inSuite;
    std::vector<double> asFile;
    const auto run = [&](bench::Deck where, std::vector<double>& times) {
        const std::filesystem::path output = folder / "murvane.pptx";
        std::filesystem::remove(output);
        auto cost = bench::runMurvaneBatch(*measured.suite, where, book, output.string(), what);
        times.push_back(cost.seconds);
        return cost;
    };
    for (int turn = 0; turn < turns; ++turn) {
        bare.push_back(bench::runBareBatch(*measured.connection, book,
                                           (folder / "bare.pptx").string(), items, what) /
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

constexpr const char* heading =
    "items  slides in   an item   bare   ratio   calls an item   saving   last/first\n";

/// Charts and ranges, each on a suite of its own.
void measureFormat(catalogue::ExportFormat format, const std::vector<int>& counts,
                   const std::filesystem::path& folder) {
    for (const bool areRanges : {false, true}) {
        const bench::MeasuredItems what{format, areRanges};
        bench::MeasuredSuite measured;
        measure(measured, folder, 2, what);  // warms the suite up
        fmt::print("{}\n{}", areRanges ? "Ranges" : "Charts", heading);
        for (const int items : counts) {
            const Sizes sizes = measure(measured, folder, items, what);
            print(items, "suite", sizes.inSuite, sizes.bareSecondsAnItem);
            print(items, "file", sizes.asFile, sizes.bareSecondsAnItem);
        }
        fmt::print("Peak memory of this suite: {:.0f} MB.\n\n", measured.peakMegabytes());
    }
}

void comparePictures(const std::vector<int>& counts, const std::filesystem::path& folder) {
    bench::MeasuredSuite measured;
    measure(measured, folder, counts.front());  // warms the suite up
    fmt::print(heading);
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
}

void run(catalogue::ExportFormat format, const std::vector<int>& counts) {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "murvane-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder could be made");
    const std::filesystem::path folder = pattern;
    if (format == catalogue::ExportFormat::Pictures) {
        comparePictures(counts.empty() ? std::vector{10, 50, 200} : counts, folder);
    } else {
        measureFormat(format, counts.empty() ? std::vector{60} : counts, folder);
    }
    std::filesystem::remove_all(folder);
}

}  // namespace

int main(int argc, char** argv) {
    using catalogue::ExportFormat;
    static const std::map<std::string_view, ExportFormat> formats = {
        {"editable", ExportFormat::Editable},
        {"embedded", ExportFormat::Embedded},
        {"linked", ExportFormat::Linked}};
    auto format = ExportFormat::Pictures;
    std::vector<int> counts;
    for (int i = 1; i < argc; ++i) {
        if (const auto named = formats.find(argv[i]); named != formats.end()) {
            format = named->second;
        } else if (const int items = std::atoi(argv[i]); items >= fewest) {
            counts.push_back(items);
        } else {
            fmt::print(stderr, "bench-batch: '{}' is no format, and no count from {}\n", argv[i],
                       fewest);
            return 2;
        }
    }
    try {
        run(format, counts);
    } catch (const std::exception& error) {
        fmt::print(stderr, "bench-batch: {}\n", error.what());
        return 1;
    }
}
