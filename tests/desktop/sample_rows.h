#pragma once

#include <string>
#include <vector>

#include "forms/list_view.h"

namespace sample {

/// Rows as an export list has them.
class Rows final : public forms::ListRows {
public:
    struct Row {
        std::vector<std::string> cells;
        bool checked = true;
        forms::Colour colour = forms::Colour::rgb(0x1E293B);
        std::string icon;
        bool marked = false;
    };

    explicit Rows(std::size_t howMany);

    [[nodiscard]] std::size_t count() const override { return rows.size(); }
    [[nodiscard]] std::string_view text(std::size_t row, std::size_t column) const override {
        const std::vector<std::string>& cells = rows.at(row).cells;
        return column < cells.size() ? std::string_view(cells[column]) : std::string_view();
    }
    [[nodiscard]] bool isChecked(std::size_t row) const override { return rows.at(row).checked; }
    void setChecked(std::size_t row, bool checked) override { rows.at(row).checked = checked; }
    [[nodiscard]] forms::Colour textColour(std::size_t row) const override {
        return rows.at(row).colour;
    }
    [[nodiscard]] std::string_view icon(std::size_t row) const override {
        return rows.at(row).icon;
    }
    [[nodiscard]] std::ptrdiff_t selected() const override { return selectedRow; }
    void select(std::ptrdiff_t row) override { selectedRow = row; }
    [[nodiscard]] bool isMarked(std::size_t row) const override { return rows.at(row).marked; }
    void setMarked(std::size_t row, bool marked) override { rows.at(row).marked = marked; }

    std::vector<Row> rows;
    std::ptrdiff_t selectedRow = -1;
};

}  // namespace sample
