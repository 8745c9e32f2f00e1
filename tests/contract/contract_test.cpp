#include "contract/contract_test.h"

#include "support/png_file.h"

namespace contract {

std::unique_ptr<Environment> ContractTest::environment_;
Object ContractTest::source_;
Object ExcelContract::kept_;

void ContractTest::SetUpTestSuite() {
    environment_ = makeEnvironment();
}

void ContractTest::TearDownTestSuite() {
    if (!source_.isNothing()) failureOf([] { source_.call("Close", false); });
    source_ = {};
    environment_.reset();
}

Object ContractTest::source() {
    if (source_.isNothing())
        source_ = suite()
                      .attach("Excel.Application")
                      .get("Workbooks")
                      .call("Open", environment().document("contract-book.xlsx"))
                      .toObject();
    return source_;
}

void ContractTest::copyItem(std::string_view what) {
    const Value sheet = source().get("Sheets").get("Item", "Sales");
    const Value chart = sheet.get("ChartObjects").get("Item", "Trend");
    if (what == "chart") chart.call("Copy");
    if (what == "cells") sheet.get("Range", "A1:C4").call("Copy");
    if (what == "picture") chart.call("CopyPicture");
}

void ExcelContract::SetUp() {
    excel = suite().attach("Excel.Application");
    ASSERT_FALSE(excel.isNothing());
    if (kept_.isNothing()) kept_ = open("contract-book.xlsx", false);
    book = kept_;
    book.get("Sheets").get("Item", 1).call("Activate");
}

void ExcelContract::TearDown() {
    bool untouched = false;
    failureOf([&] { untouched = book.get("Saved").toBool(); });
    if (!untouched) {
        opened_.push_back(kept_);
        kept_ = {};
    }
    for (const Object& document : opened_) {
        failureOf([&] { document.call("Close", arg("SaveChanges", false)); });
    }
}

void ExcelContract::TearDownTestSuite() {
    if (!kept_.isNothing()) failureOf([] { kept_.call("Close", arg("SaveChanges", false)); });
    kept_ = {};
    ContractTest::TearDownTestSuite();
}

Object ExcelContract::open(std::string_view document, bool closes) {
    const Object opened = excel.get("Workbooks")
                              .call("Open", arg("FileName", environment().document(document)))
                              .toObject();
    if (closes) opened_.push_back(opened);
    return opened;
}

void PowerPointContract::SetUp() {
    powerPoint = suite().attach("PowerPoint.Application");
    ASSERT_FALSE(powerPoint.isNothing());
    deck = powerPoint.get("Presentations")
               .call("Open", environment().document("contract-deck.pptx"))
               .toObject();
}

void PowerPointContract::TearDown() {
    failureOf([&] { deck.call("Close"); });
}

Object PowerPointContract::addPicture(std::int32_t slideIndex, double width, double height) const {
    const std::string file = environment().temporaryFile("picture.png");
    support::writeBytes(file, support::pngPictureOfPoints(width, height));
    return slide(slideIndex).get("Shapes").call("AddPicture", file, 0, -1, 0, 0, -1, -1).toObject();
}

void WordContract::SetUp() {
    word = suite().attach("Word.Application");
    ASSERT_FALSE(word.isNothing());
    document = word.get("Documents").call("Add").toObject();
    suite().clearClipboard();
}

void WordContract::TearDown() {
    failureOf([&] { document.call("Close", false); });
}

void WordContract::goToNewPage() const {
    const auto end = [&] {
        const Object range = document.get("Range").toObject();
        range.call("Collapse", 0);
        return range;
    };
    for (const bool breaks : {true, false}) {
        end().call("InsertParagraphAfter");
        end().get("ParagraphFormat").put("PageBreakBefore", breaks);
    }
    end().call("Select");
}

std::string WordContract::saved(std::string_view fileName) const {
    const std::string file = environment().temporaryFile(fileName);
    document.call("SaveCopyAs", file);
    return file;
}

}  // namespace contract
