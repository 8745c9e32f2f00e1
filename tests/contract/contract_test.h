#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "contract/contract_environment.h"
#include "office/failure.h"
#include "office/value.h"
#include "support/automation.h"

namespace contract {

using office::arg;
using office::Failure;
using office::FailureNumber;
using office::Object;
using office::Table;
using office::Value;

inline constexpr std::int32_t subscriptOutOfRange = 9;
inline constexpr std::int32_t refused = 1004;

using support::expectMembers;
using support::failureOf;
using support::namesIn;

/// One environment for all tests of a suite: a live one takes a second to start.
class ContractTest : public testing::Test {
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

    static Environment& environment() { return *environment_; }
    static office::Suite& suite() { return environment_->suite(); }

    /// Copies the chart "Trend", cells or a picture of contract-book.xlsx, which then stays open
    /// for the tests that follow.
    static void copyItem(std::string_view what);

private:
    static Object source();

    static std::unique_ptr<Environment> environment_;
    static Object source_;
};

/// With contract-book.xlsx open, its first sheet active. To load it costs more than most tests: one
/// that a test leaves unchanged serves the next.
class ExcelContract : public ContractTest {
protected:
    void SetUp() override;
    void TearDown() override;
    static void TearDownTestSuite();

    /// Closed behind the test, unless the next one takes it.
    [[nodiscard]] Object open(std::string_view document, bool closes = true);
    [[nodiscard]] Object sheet(const Value& nameOrIndex) const {
        return book.get("Sheets").get("Item", nameOrIndex).toObject();
    }
    [[nodiscard]] Object range(std::string_view sheetName, std::string_view address) const {
        return sheet(sheetName).get("Range", address).toObject();
    }
    /// A picture that was exported may still be on its way.
    static void awaitPicture(const std::string& file) {
        if (const auto files = suite().pictureFiles()) files->complete(file);
    }

    Object excel;
    Object book;

private:
    static Object kept_;
    std::vector<Object> opened_;
};

/// With contract-deck.pptx open, its first slide in view.
class PowerPointContract : public ContractTest {
protected:
    void SetUp() override;
    void TearDown() override;

    [[nodiscard]] Object slides() const { return deck.get("Slides").toObject(); }
    [[nodiscard]] Object slide(std::int32_t index) const {
        return slides().get("Item", index).toObject();
    }
    [[nodiscard]] Object window() const { return powerPoint.get("ActiveWindow").toObject(); }
    [[nodiscard]] Object selection() const { return window().get("Selection").toObject(); }
    void goTo(std::int32_t index) const { window().get("View").call("GotoSlide", index); }
    /// A picture of this size in points, put on a slide at its natural size.
    Object addPicture(std::int32_t slideIndex, double width, double height) const;

    Object powerPoint;
    Object deck;
};

/// With a new document open.
class WordContract : public ContractTest {
protected:
    void SetUp() override;
    void TearDown() override;

    [[nodiscard]] Object selection() const { return word.get("Selection").toObject(); }
    [[nodiscard]] Object shapes(const char* collection) const {
        return document.get(collection).toObject();
    }
    /// Puts the caret behind all text, on a page of its own, as every export does.
    void goToNewPage() const;
    /// A copy of the document as it is now.
    [[nodiscard]] std::string saved(std::string_view fileName) const;

    Object word;
    Object document;
};

}  // namespace contract
