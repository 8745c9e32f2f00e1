#pragma once

#include <com/sun/star/sheet/XNamedRange.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/name_contents.h"

namespace libreoffice::excel {

/// The flag of a hidden name; the headers of older LibreOffice versions don't know it.
constexpr sal_Int32 hiddenNameFlag = 16;

/// Where a name of a workbook is kept.
struct NameEntry {
    /// The sheet that the name belongs to; null for the workbook's own.
    SheetPtr scope;
    /// As LibreOffice keeps it: a built-in name has a prefix ("_xlnm.Print_Area").
    std::string storedName;

    /// "Print_Area".
    [[nodiscard]] std::string shortName() const;
    /// "Sales!Print_Area", or the short name of a name of the workbook.
    [[nodiscard]] std::string fullName() const;
};

/// Cells of a known sheet.
struct FoundCells {
    SheetPtr sheet;
    CellBlocks blocks;
};

/// All names, or those of one sheet, in the order of the alphabet; equal ones by sheet, the
/// workbook's own last.
[[nodiscard]] std::vector<NameEntry> listNames(CalcDocument& book, const Connection& connection,
                                               const SheetPtr& ofSheet = nullptr);

/// The name in its container. `css::container::NoSuchElementException` if it has been deleted.
[[nodiscard]] uno::Reference<css::sheet::XNamedRange> fetchName(CalcDocument& book,
                                                                const NameEntry& entry);

/// A name of one sheet, or of the workbook for a null sheet. Nothing if there is none.
[[nodiscard]] std::optional<NameEntry> findNameIn(CalcDocument& book, const SheetPtr& scope,
                                                  std::string_view name);

/// A name as `Names.Item` takes it: with its sheet, or without; without, the workbook's own goes
/// ahead of that of the active sheet, and that ahead of those of other sheets.
[[nodiscard]] std::optional<NameEntry> findName(CalcDocument& book, const Connection& connection,
                                                std::string_view name);

/// The cells that a name stands for; nothing for a constant, a formula, a broken or external
/// reference.
[[nodiscard]] std::optional<FoundCells> cellsOfName(CalcDocument& book,
                                                    const Connection& connection,
                                                    const NameEntry& entry);

/// Cells by a text as `Range` takes it: an address or a name, with the name of a sheet ahead or
/// meant on the given one.
[[nodiscard]] std::optional<FoundCells> cellsOfText(CalcDocument& book,
                                                    const Connection& connection,
                                                    const SheetPtr& onSheet, std::string_view text);

}  // namespace libreoffice::excel
