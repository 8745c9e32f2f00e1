#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "live/live_suite.h"
#include "office/libreoffice/excel/calc_document.h"

namespace live {

/// Workbooks in the shared LibreOffice.
class ExcelLive : public LiveSuite {
protected:
    void SetUp() override;
    void TearDown() override;

    /// One of the workbooks that `make-books` writes, as a copy of the test's own.
    Object open(std::string_view name);
    /// The active workbook, saved under another name.
    [[nodiscard]] std::string savedCopy() const;

    [[nodiscard]] static Object sheet(const Object& book, const Value& which);
    [[nodiscard]] static std::vector<std::string> namesIn(const Value& collection);
    /// The workbook as the suite has it, for what a user does meanwhile.
    [[nodiscard]] libreoffice::uno::Reference<libreoffice::css::frame::XModel> model() const;
    [[nodiscard]] std::vector<std::string> openDocuments() const;

    std::shared_ptr<libreoffice::Desk> desk_;
};

}  // namespace live
