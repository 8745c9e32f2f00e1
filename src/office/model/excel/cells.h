#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "office/copied.h"
#include "office/model/excel/cell_block.h"
#include "office/value.h"

/// What the object model of Excel asks of what lies below: a suite, a file, or plain values in
/// memory. Places count from 0, lengths are points.
namespace office::model::excel {

struct Box {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// One block of cells of a sheet. What reads or writes does so for the whole block at once.
class Cells {
public:
    Cells() = default;
    Cells(const Cells&) = delete;
    Cells& operator=(const Cells&) = delete;
    virtual ~Cells() = default;

    /// Numbers, texts and truth values; errors and empty cells as empty.
    virtual Table read() = 0;
    /// Enters values from the first cell on, each as `typedIn` has it. A table smaller than the
    /// block leaves the rest as it was; none is larger.
    virtual void write(const Table& values) = 0;
    /// Takes values and formulas out.
    virtual void clear() = 0;
    /// "General", "0.00", "@": the format of the first cell.
    virtual std::string numberFormat() = 0;
    virtual void setNumberFormat(const std::string& code) = 0;

    virtual Box place() = 0;
    /// Whether nothing is seen of them, and none of them is merged with others.
    virtual bool areBlank() = 0;

    /// The cells, or a picture of them as they look on the screen, which is taken now. `Failure`
    /// 1004 if there is nothing to take a picture of.
    virtual CopiedPtr copy(CopySource source) = 0;
};

using CellsPtr = std::shared_ptr<Cells>;

/// Where the cells of a sheet lie. Each column and row counts as it was when it was met first, so a
/// map is for questions that belong together.
class CellMap {
public:
    CellMap() = default;
    CellMap(const CellMap&) = delete;
    CellMap& operator=(const CellMap&) = delete;
    virtual ~CellMap() = default;

    virtual CellBlock cellAt(double left, double top) = 0;
    virtual Box placeOf(const CellBlock& block) = 0;
};

/// The cells that something on a sheet lies on.
[[nodiscard]] CellBlock cellsUnder(const Box& box, CellMap& cells);

/// What a cell holds when a value has been typed in: a text that is a number becomes one, unless
/// the cell's format is for text ("@"), where everything stays text. A formula is never made.
[[nodiscard]] Value typedIn(const Value& value, bool textCell);

}  // namespace office::model::excel
