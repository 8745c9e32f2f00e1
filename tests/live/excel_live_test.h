#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "office/failure.h"
#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/private_instance.h"
#include "office/value.h"

namespace live {

using office::arg;
using office::Object;
using office::Table;
using office::Value;

/// Workbooks in a LibreOffice of the test's own, without windows.
class ExcelLive : public testing::Test {
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    void SetUp() override;
    void TearDown() override;

    /// One of the workbooks that `make-books` writes, as a copy of the test's own.
    Object open(std::string_view name);
    /// A path in the test's own folder.
    [[nodiscard]] std::string file(std::string_view name) const;
    /// What automation started anew knows of the same suite: nothing that the other one remembers.
    [[nodiscard]] Object freshApplication() const;

    [[nodiscard]] static Object sheet(const Object& book, const Value& which);
    [[nodiscard]] static std::vector<std::string> namesIn(const Value& collection);
    /// The number of the failure that a statement ends in; 0 if it goes through. Keeps its words in
    /// `lastWords`.
    template <class Statement>
    std::int32_t failureOf(Statement&& statement) {
        try {
            statement();
            return 0;
        } catch (const office::Failure& failure) {
            lastWords = failure.description();
            return failure.number();
        }
    }

    /// The workbook as the suite has it, for what a user does meanwhile.
    [[nodiscard]] libreoffice::uno::Reference<libreoffice::css::frame::XModel> model() const;
    [[nodiscard]] std::vector<std::string> openDocuments() const;
    template <class Statement>
    std::uint64_t callsOf(Statement&& statement) {
        const std::uint64_t before = instance_->connection()->remoteCalls();
        statement();
        return instance_->connection()->remoteCalls() - before;
    }

    Object app;
    std::string lastWords;

    static std::unique_ptr<libreoffice::PrivateInstance> instance_;
    std::shared_ptr<libreoffice::Desk> desk_;
    std::filesystem::path folder_;
};

}  // namespace live
