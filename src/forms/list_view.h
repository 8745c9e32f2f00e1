#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/controls.h"

namespace forms {

/// The rows that a list view shows, wherever they are kept. Rows and columns count from 0.
class ListRows {
public:
    ListRows() = default;
    ListRows(const ListRows&) = delete;
    ListRows& operator=(const ListRows&) = delete;
    virtual ~ListRows() = default;

    [[nodiscard]] virtual std::size_t count() const = 0;
    [[nodiscard]] virtual std::string_view text(std::size_t row, std::size_t column) const = 0;
    [[nodiscard]] virtual bool isChecked(std::size_t row) const = 0;
    virtual void setChecked(std::size_t row, bool checked) = 0;
    [[nodiscard]] virtual Colour textColour(std::size_t row) const = 0;
    /// The name of the row's icon, empty for none.
    [[nodiscard]] virtual std::string_view icon(std::size_t row) const = 0;
    /// The selected row, or -1.
    [[nodiscard]] virtual std::ptrdiff_t selected() const = 0;
    virtual void select(std::ptrdiff_t row) = 0;
    /// Whether a row is one of those chosen for a common deed.
    [[nodiscard]] virtual bool isMarked(std::size_t row) const = 0;
    virtual void setMarked(std::size_t row, bool marked) = 0;
};

/// A list in report view with check boxes: rows are seen through `ListRows`, columns are its own.
class ListView : public Control {
public:
    struct Column {
        std::string text;
        std::string icon;
        Twips width = 0;
        Alignment alignment = Alignment::Left;
        bool operator==(const Column&) const = default;
    };

    ListView(Form& form, std::string name, Place at, Frame* container = nullptr)
        : Control(form, ControlClass::ListView, std::move(name), at, container) {}

    /// Null until the rows are there.
    ListRows* rows = nullptr;
    std::vector<Column> columns;
    bool checkBoxes = false;
    bool gridLines = false;
    /// Stands in the place of rows while there are none.
    std::string placeholder;
    bool horizontalScrollBar = true;

    /// To be called after any change of rows, so that an idle list need not be compared.
    void rowsChanged() { ++version_; }
    [[nodiscard]] int version() const { return version_; }

    /// A user's click on the check box of a row: flips it, then tells.
    void check(std::size_t row, bool checked);
    /// How a row is chosen: alone, to or from those that are chosen already, or with all from the
    /// last one that was chosen otherwise.
    enum class Pick { Only, Toggle, Through };
    /// A user's click on a row: selects it, then tells.
    void click(std::size_t row, Pick pick = Pick::Only);
    void markAll();

    std::function<void(std::size_t row)> onItemCheck;
    std::function<void(std::size_t row)> onItemClick;
    /// The column counts from 0.
    std::function<void(std::size_t column)> onColumnClick;
    /// The marked rows are to stand before the row that is now at this index, or behind the last.
    std::function<void(std::size_t before)> onRowsMove;
    /// They are to go one row up (-1) or down (1).
    std::function<void(int step)> onRowsStep;
    /// What the user can write into them is to be wiped out.
    std::function<void()> onRowsClear;
    /// The selected one is to go where the form would put it by the mouse.
    std::function<void()> onRowInsert;

private:
    void markTheOneShown(std::size_t besides);
    void markThrough(std::size_t row);

    std::size_t anchor_ = 0;
    int version_ = 0;
};

}  // namespace forms
