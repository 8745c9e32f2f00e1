#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "office/libreoffice/desk.h"
#include "office/value.h"
#include "support/automation.h"
#include "support/temporary_folder.h"

namespace live {

using office::arg;
using office::Object;
using office::Table;
using office::Value;
using support::expectMembers;
using support::namesIn;

/// A LibreOffice without windows that all tests of the program share, and a folder of each test's
/// own.
class LiveSuite : public testing::Test {
protected:
    [[nodiscard]] static const std::shared_ptr<libreoffice::Connection>& connection();

    /// A path in the test's own folder.
    [[nodiscard]] std::string file(std::string_view name) const { return folder_.file(name); }
    /// A copy of a file in the test's own folder, so that nothing can lock or change the one that
    /// all tests share.
    [[nodiscard]] std::string copyOf(const std::string& folder, std::string_view name) const;

    /// As `support::failureOf`; keeps the words in `lastWords`.
    template <class Statement>
    std::int32_t failureOf(Statement&& statement) {
        return support::failureOf(statement, &lastWords);
    }

    /// How many calls to the suite a statement takes.
    template <class Statement>
    std::uint64_t callsOf(Statement&& statement) {
        const std::uint64_t before = connection()->remoteCalls();
        statement();
        return connection()->remoteCalls() - before;
    }

    std::shared_ptr<libreoffice::Desk> desk = std::make_shared<libreoffice::Desk>(
        connection(), true, std::make_shared<office::Clipboard>(),
        std::make_shared<office::drawing::DrawingRoom>());
    Object app;
    std::string lastWords;

private:
    support::TemporaryFolder folder_;
};

/// Workbooks in the shared LibreOffice.
class ExcelLive : public LiveSuite {
protected:
    static constexpr std::int32_t refused = 1004;

    ExcelLive();
    void TearDown() override;

    /// One of the workbooks that `make-books` writes, as a copy of the test's own.
    Object open(std::string_view name);
    /// The active workbook in another file, by one of the suite's filters.
    [[nodiscard]] std::string savedAs(std::string_view name, const char* filter,
                                      const char* password = "") const;

    [[nodiscard]] static Object sheet(const Object& book, const Value& which);
    /// The workbook as the suite has it, for what a user does meanwhile.
    [[nodiscard]] libreoffice::uno::Reference<libreoffice::css::frame::XModel> model() const;
    [[nodiscard]] std::vector<std::string> openDocuments() const;
};

/// Presentations in the shared LibreOffice.
class PowerPointLive : public LiveSuite {
protected:
    static constexpr std::int32_t titleOnly = 11;
    static constexpr std::int32_t blank = 12;

    PowerPointLive();
    void TearDown() override;

    /// One of the presentations that `make-decks` writes.
    Object open(std::string_view deck);
    /// The sample's kind of presentation, with three slides more: titleOnly, titleOnly, blank.
    Object openWithSlides();
    Object openFile(const std::string& path);
    Object addPicture(const Object& slide, double widthPt, double heightPt) const;
    static Object addSlide(const Object& deck, std::int32_t layout);
    [[nodiscard]] static Object slide(const Object& deck, std::int32_t place);
    [[nodiscard]] static std::int32_t slideCount(const Object& deck);

    /// Expects a saved copy's slide to hold each of these, and none of those.
    void expectSaved(const Object& deck, int slide, const std::vector<std::string>& all,
                     const std::vector<std::string>& none = {}) const;
};

}  // namespace live
