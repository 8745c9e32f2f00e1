#pragma once

#include <com/sun/star/sheet/XNamedRange.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "office/libreoffice/excel/last_look.h"
#include "office/libreoffice/uno_values.h"
#include "office/model/excel/book.h"

namespace libreoffice::excel {

class CalcDocument;

/// The defined names of a workbook or of a sheet. LibreOffice keeps built-in ones with a prefix
/// ("_xlnm.Print_Area"), which they have not got here.
class NamedRanges final : public office::model::excel::NameScope {
public:
    NamedRanges(CalcDocument& book, uno::Reference<css::sheet::XNamedRanges> ranges)
        : book_(book),
          ranges_(std::move(ranges)) {}

    std::vector<std::string> all() override;
    bool has(std::string_view name) override;
    std::optional<office::model::excel::NamedCells> cells(const std::string& name) override;
    bool isVisible(const std::string& name) override;
    void define(const std::string& name, const office::model::excel::CellsOfSheet& cells,
                bool visible) override;

private:
    /// What the last look has told of names.
    struct Seen {
        std::unordered_map<std::string, bool> isThere;
        std::unordered_map<std::string, std::string> contents;
    };

    [[nodiscard]] Seen& seen();
    [[nodiscard]] std::string contentsOf(const std::string& name);
    [[nodiscard]] std::optional<rtl::OUString> storedName(std::string_view name) const;
    [[nodiscard]] uno::Reference<css::sheet::XNamedRange> fetch(const std::string& name);
    [[nodiscard]] std::optional<office::model::excel::NamedCells> referred(
        const uno::Reference<css::sheet::XNamedRange>& range) const;

    CalcDocument& book_;
    uno::Reference<css::sheet::XNamedRanges> ranges_;
    Seen seen_;
    LastLook look_;
    /// Asked for once each: a workbook may have thousands, and each is looked at several times.
    std::unordered_map<std::string, uno::Reference<css::sheet::XNamedRange>> fetched_;
};

}  // namespace libreoffice::excel
