// How far the drawing room's pictures are from those that the suite draws itself, worst first, with
// what goes the suite's way and why. The worst pairs are written side by side, the suite's left.
//
//     compare-pictures FOLDER BOOK ...

#include <Magick++.h>
#include <fmt/format.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "book_pictures.h"
#include "difference.h"
#include "office/failure.h"

namespace {

constexpr std::size_t pairsWritten = 20;

struct Row {
    compare::Pair pair;
    double difference = 0;
};

void printRow(const Row& row) {
    fmt::print("{:6.2f}  {:12} {:24} {}\n", row.difference,
               row.pair.reason.empty() ? "room" : "suite: " + row.pair.reason, row.pair.book,
               row.pair.name);
}

double shareUpTo(const std::vector<Row>& rows, double most) {
    const auto good = std::count_if(rows.begin(), rows.end(),
                                    [&](const Row& row) { return row.difference <= most; });
    return 100.0 * static_cast<double>(good) /
           static_cast<double>(std::max<std::size_t>(1, rows.size()));
}

void report(std::vector<Row> rows, std::size_t others, const std::filesystem::path& folder) {
    std::sort(rows.begin(), rows.end(),
              [](const Row& a, const Row& b) { return a.difference > b.difference; });
    for (const Row& row : rows) printRow(row);
    std::filesystem::create_directories(folder);
    for (std::size_t i = 0; i < std::min(pairsWritten, rows.size()); ++i)
        compare::writePair(rows[i].pair.suites, rows[i].pair.ours,
                           (folder / fmt::format("{:02}.png", i + 1)).string());
    fmt::print(
        "\n{} drawn by the room: up to 1 {:.0f} %, up to 2.5 {:.0f} %, up to 5 {:.0f} %; {} by "
        "the suite\n",
        rows.size(), shareUpTo(rows, 1), shareUpTo(rows, 2.5), shareUpTo(rows, 5), others);
}

int compareBooks(const std::filesystem::path& folder, const std::vector<std::string>& books) {
    compare::BookPictures pictures;
    std::vector<Row> rows;
    std::size_t others = 0;
    for (const std::string& book : books) {
        pictures.forEach(book, [&](const compare::Pair& pair) {
            if (pair.ours.empty() || !pair.reason.empty()) {
                ++others;
                fmt::print("  suite  {:12} {:24} {}\n", pair.reason, pair.book, pair.name);
                return;
            }
            rows.push_back({pair, compare::differenceOf(pair.suites, pair.ours)});
        });
    }
    report(std::move(rows), others, folder);
    return 0;
}

}  // namespace

int main(int count, char** words) {
    Magick::InitializeMagick(words[0]);
    const std::vector<std::string> arguments(words + 1, words + count);
    if (arguments.size() < 2) {
        fmt::print(stderr, "usage: compare-pictures FOLDER BOOK ...\n");
        return 2;
    }
    try {
        return compareBooks(arguments[0], {arguments.begin() + 1, arguments.end()});
    } catch (const office::Failure& failure) {
        fmt::print(stderr, "compare-pictures: {}: {}\n", failure.source(), failure.description());
    } catch (const std::exception& error) {
        fmt::print(stderr, "compare-pictures: {}\n", error.what());
    }
    return 1;
}
