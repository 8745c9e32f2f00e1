#include <unistd.h>

#include <filesystem>
#include <string>

#include "contract/contract_environment.h"
#include "office_double/suite.h"
#include "support/written_decks.h"

namespace contract {

namespace {

namespace layout = office::model::powerpoint::layout;
using office::Value;
using office_double::DoubleSuite;
using office_double::Presentation;
using office_double::Workbook;
using office_double::Worksheet;

constexpr double chartLeft = 11 * Worksheet::columnWidth;  // column L

void fillSales(Worksheet& sales) {
    std::vector<std::vector<Value>> rows = {{"Item"}};
    for (int n = 1; n <= 9; ++n) rows[0].emplace_back("P" + std::to_string(n));
    for (int row = 2; row <= 20; ++row) {
        rows.push_back({"Item " + std::to_string(row)});
        for (int column = 2; column <= 10; ++column) rows.back().emplace_back(row * 100 + column);
    }
    sales.block("A1", rows)
        .chart("Chart 1", {chartLeft, Worksheet::rowHeight, 360, 216})
        .chart("Trend", {chartLeft, 19 * Worksheet::rowHeight, 240, 144})
        .define("Local", "A2:B3")
        .define("Print_Area", "A1:J20");
}

void fillTypes(Worksheet& types) {
    types.value("A1", "plain")
        .format("A2", "@")
        .value("A2", "3")
        .value("A3", 2.5)
        .value("A4", true)
        .value("A6", 504.0)
        .format("A7", "0.00")
        .value("A7", 0.256)
        .format("A8", "0%")
        .value("A8", 0.5);
}

void fillBook(Workbook& book) {
    fillSales(book.sheet("Sales"));
    fillTypes(book.sheet("Types"));
    book.chartSheet("Overview");
    book.sheet("Data, 2026")
        .block("A1", {{1, 2}, {3, 4}})
        .chart("Only")
        .define("Local", "A1")
        .define("Own", "B2");
    book.sheet("Hidden").value("A1", "out of sight").chart("Chart 1", {96, 30, 240, 144}).hide();
    book.sheet("Buried").value("A1", "deep").veryHide();
    book.sheet("Locked").value("A1", "fixed").protect();
    book.chartSheet("Backstage").hide();
    book.define("Total", "=Sales!$B$2:$C$5")
        .define("OneCell", "=Sales!$B$2")
        .define("TwoAreas", "=Sales!$A$1:$A$5,Sales!$C$1:$C$5")
        .define("Quoted", "='Data, 2026'!$A$1:$B$2")
        .define("OnHidden", "=Hidden!$A$1")
        .defineHidden("Concealed", "=Sales!$A$1")
        .define("Constant", "=42")
        .define("Formula", "=SUM(Sales!$B$2:$B$5)")
        .define("Broken", "=Sales!#REF!")
        .define("Elsewhere", "=[Other.xlsx]Sales!$A$1");
}

void fillDeck(Presentation& deck) {
    const auto titled = [&](std::int32_t layout, const char* title) {
        const auto frame = deck.addSlide(layout).title().handle().get("TextFrame");
        frame.get("TextRange").put("Text", title);
    };
    titled(layout::title, "Contract");
    titled(layout::titleOnly, "Points");
    titled(layout::titleOnly, "Chart here");
    deck.addSlide(layout::blank);
}

class DoubleEnvironment : public Environment {
public:
    DoubleEnvironment() {
        std::filesystem::create_directory(folder_);
        suite_.excel().addFile(document("contract-book.xlsx"), fillBook);
        suite_.excel().addFile(document("contract-locked.xlsx"), [](Workbook& book) {
            book.sheet("Sheet1").value("A1", "open");
            book.protectStructure();
        });
        suite_.excel().addFile(document("contract-readonly.xlsx"), [](Workbook& book) {
            book.sheet("Sheet1").value("A1", "as it was");
            book.chartSheet("Overview");
            book.readOnly();
        });
        static_cast<void>(suite_.word());
        auto& deck = suite_.powerPoint().addPresentation("New.pptx");
        fillDeck(deck);
        deck.saveCopy(document("contract-deck.pptx"));
        deck.close();
    }

    ~DoubleEnvironment() override {
        support::keepDecks(folder_, {});
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    office::Suite& suite() override { return suite_; }

    std::string document(std::string_view fileName) override { return temporaryFile(fileName); }

    std::string temporaryFile(std::string_view fileName) override {
        return (folder_ / fileName).string();
    }

private:
    DoubleSuite suite_;
    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("contract-double-" + std::to_string(getpid()));
};

}  // namespace

std::unique_ptr<Environment> makeEnvironment() {
    return std::make_unique<DoubleEnvironment>();
}

}  // namespace contract
