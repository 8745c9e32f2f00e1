#pragma once

#include <com/sun/star/uno/Sequence.hxx>

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "office/libreoffice/excel/cell_conditions.h"
#include "office/libreoffice/excel/cell_dress.h"
#include "office/libreoffice/excel/cell_formats.h"
#include "office/libreoffice/excel/html_places.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

class CalcDocument;

/// The cells of a sheet as they are dressed.
class SheetLooks {
public:
    /// `table`: the sheet's in a page that the suite writes, which has to last; its rows are read
    /// when they are asked for.
    SheetLooks(SheetRecord& sheet, std::string_view table);
    SheetLooks(const SheetLooks&) = delete;
    SheetLooks& operator=(const SheetLooks&) = delete;

    /// By the place on the sheet, from 0. Nothing for a cell beyond those with contents, lines or
    /// grounds.
    [[nodiscard]] const CellDress* at(std::int32_t column, std::int32_t row);

private:
    void readRow(std::size_t row);

    SheetRecord& sheet_;
    /// Those that have been read are empty.
    std::vector<std::string_view> rows_;
    ShownLines shown_;
    std::vector<CellDress> cells_;
    HtmlPlaces places_;
};

/// What pictures and tables ask of a workbook's formats, each once until the workbook has been
/// changed: whether cells have indents, the conditions of conditional formats, what their styles
/// say, the numbers that scales go by, and the cells with all conditions worked out. Those the
/// suite tells in nothing but a page of all sheets that are shown. Shapes come and go unheard: they
/// change no cell, and at most the page is larger once than it should be.
class BookLooks {
public:
    explicit BookLooks(CalcDocument& book);

    /// Those of a sheet that touch a block of cells.
    [[nodiscard]] std::vector<CellCondition> conditionsOn(SheetRecord& sheet,
                                                          const model::CellBlock& block);
    /// As `excel::hasIndents`, which is asked once for a sheet.
    [[nodiscard]] bool hasIndents(SheetRecord& sheet);
    /// Null if the workbook has no such style.
    [[nodiscard]] std::shared_ptr<const StyleFacts> styleFacts(const rtl::OUString& name);
    /// As `sortedNumbers`, which is asked once for the same cells.
    [[nodiscard]] std::shared_ptr<const std::vector<double>> numbersIn(
        SheetRecord& sheet, const std::vector<model::CellBlock>& blocks);
    /// Whether that page would take seconds, as it is taken to where thousands of shapes are.
    [[nodiscard]] bool isTooLarge();
    /// Nothing if the workbook is too large, or the suite fails. The page holds no hidden sheet:
    /// one is shown for the moment.
    [[nodiscard]] SheetLooks* of(SheetRecord& sheet);

private:
    friend class UnheardByLooks;

    /// What is told while the same sheets are shown.
    struct Page {
        std::optional<bool> isTooLarge;
        /// None before it was asked for, and nothing in it where the suite could write none.
        std::optional<uno::Sequence<sal_Int8>> text;
        std::map<SheetRecordPtr, SheetLooks> sheets;
    };

    struct Numbers {
        std::vector<model::CellBlock> blocks;
        std::shared_ptr<const std::vector<double>> sorted;
    };

    struct OfSheet {
        std::optional<bool> hasIndents;
        std::optional<std::vector<CellCondition>> conditions;
        std::vector<Numbers> numbers;
    };

    void forgetIfChanged();
    [[nodiscard]] OfSheet& knownOf(SheetRecord& sheet);
    [[nodiscard]] std::vector<SheetRecordPtr> shownSheets();
    [[nodiscard]] Page& pageOf(const std::vector<SheetRecordPtr>& shown);
    [[nodiscard]] bool isTooLarge(Page& page, const std::vector<SheetRecordPtr>& shown) const;
    [[nodiscard]] uno::Sequence<sal_Int8> written() const;

    CalcDocument& book_;
    /// A listener sets it from a thread of the bridge.
    std::shared_ptr<std::atomic<bool>> hasChanged_;
    /// By those sheets. Where a sheet stands costs a call of each.
    std::map<std::vector<SheetRecordPtr>, Page> pages_;
    std::map<SheetRecordPtr, OfSheet> sheets_;
    std::map<rtl::OUString, std::shared_ptr<const StyleFacts>> styles_;
};

/// What this program writes during the life of this object changes no look. Where a user may write
/// too, it counts all the same.
class UnheardByLooks {
public:
    explicit UnheardByLooks(CalcDocument& book);
    UnheardByLooks(const UnheardByLooks&) = delete;
    UnheardByLooks& operator=(const UnheardByLooks&) = delete;
    ~UnheardByLooks();

private:
    /// Null where all counts.
    BookLooks* looks_;
    bool hadChanged_;
};

}  // namespace libreoffice::excel
