#pragma once

#include "catalogue/export_choices.h"
#include "forms/list_view.h"

namespace catalogue {

/// Colours of a row's text.
namespace row_colour {
inline constexpr forms::Colour ready{30, 41, 59};
/// A row that isn't checked, or lacks the slide number that it needs.
inline constexpr forms::Colour muted{100, 116, 139};
/// A range of several areas.
inline constexpr forms::Colour refused{255, 0, 0};
}  // namespace row_colour

/// The export list as a list view shows it.
class ExportListView : public forms::ListRows {
public:
    explicit ExportListView(ExportList& list) : list_(list) {}

    [[nodiscard]] std::size_t count() const override { return list_.rows.size(); }
    [[nodiscard]] std::string_view text(std::size_t row, std::size_t column) const override;
    [[nodiscard]] bool isChecked(std::size_t row) const override {
        return list_.rows.at(row).checked;
    }
    void setChecked(std::size_t row, bool checked) override {
        list_.rows.at(row).checked = checked;
    }
    [[nodiscard]] forms::Colour textColour(std::size_t row) const override;
    [[nodiscard]] std::string_view icon(std::size_t row) const override;
    [[nodiscard]] std::ptrdiff_t selected() const override { return list_.selected; }
    void select(std::ptrdiff_t row) override { list_.selected = row; }
    [[nodiscard]] bool isMarked(std::size_t row) const override {
        return list_.rows.at(row).isMarked;
    }
    void setMarked(std::size_t row, bool marked) override { list_.rows.at(row).isMarked = marked; }

private:
    ExportList& list_;
};

}  // namespace catalogue
