#include "contract/contract_test.h"

#include "support/png_file.h"

namespace contract {

std::unique_ptr<Environment> ContractTest::environment_;

void ContractTest::SetUpTestSuite() {
    environment_ = makeEnvironment();
}

void ContractTest::TearDownTestSuite() {
    environment_.reset();
}

void ExcelContract::SetUp() {
    excel = suite().attach("Excel.Application");
    ASSERT_FALSE(excel.isNothing());
    book = open("contract-book.xlsx");
}

void ExcelContract::TearDown() {
    for (const Object& document : opened_) {
        failureOf([&] { document.call("Close", arg("SaveChanges", false)); });
    }
}

Object ExcelContract::open(std::string_view document) {
    const Object opened = excel.get("Workbooks")
                              .call("Open", arg("FileName", environment().document(document)))
                              .toObject();
    opened_.push_back(opened);
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

}  // namespace contract
