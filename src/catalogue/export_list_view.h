#pragma once

#include "catalogue/export_list.h"
#include "forms/list_view.h"

namespace catalogue {

/// The export list as a list view shows it.
class ExportListView : public forms::ListRows {
public:
    explicit ExportListView(ExportList& list) : list_(list) {}

    [[nodiscard]] std::size_t count() const override { return list_.rows.size(); }
    [[nodiscard]] std::string_view text(std::size_t row, std::size_t column) const override;
    [[nodiscard]] bool isChecked(std::size_t row) const override {
        return list_.rows.at(row).Checked;
    }
    void setChecked(std::size_t row, bool checked) override {
        list_.rows.at(row).Checked = checked;
    }
    [[nodiscard]] forms::Colour textColour(std::size_t row) const override;
    [[nodiscard]] std::string_view icon(std::size_t row) const override;
    [[nodiscard]] std::ptrdiff_t selected() const override { return list_.selected; }
    void select(std::ptrdiff_t row) override { list_.selected = row; }

private:
    ExportList& list_;
};

}  // namespace catalogue
