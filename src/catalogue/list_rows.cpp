#include "catalogue/list_rows.h"

#include <algorithm>

#include "catalogue/list_columns.h"
#include "catalogue/row_objects.h"
#include "office/text.h"

namespace catalogue {

void RenumberIncludedRows(ExportList& list) {
    std::int32_t rank = 0;
    for (ExportRow& row : list.rows) {
        row.SubItems(3) = row.Checked ? std::to_string(++rank) : std::string();
    }
}

void ColorListRows(ExportList& list, bool predefinedSlides) {
    for (ExportRow& row : list.rows) {
        if (row.ForeColor == RowColourRefused) continue;
        const bool lacksNumber = predefinedSlides && office::trim(row.SubItems(2)).empty();
        row.ForeColor = row.Checked && !lacksNumber ? RowColourChecked : RowColourMuted;
    }
}

std::int32_t CountCheckedRows(const ExportList& list) {
    return static_cast<std::int32_t>(std::count_if(
        list.rows.begin(), list.rows.end(), [](const ExportRow& row) { return row.Checked; }));
}

std::int32_t CountExportableRows(session::OfficeSession& session, const ExportList& list) {
    RowObjects objects(session);
    return static_cast<std::int32_t>(
        std::count_if(list.rows.begin(), list.rows.end(),
                      [&](const ExportRow& row) { return objects.isOnVisibleSheet(row); }));
}

bool RowOnVisibleSheet(session::OfficeSession& session, const ExportRow& row) {
    return RowObjects(session).isOnVisibleSheet(row);
}

std::string listAsTabText(const ExportList& list) {
    std::string text;
    for (std::size_t i = 0; i < listColumns.size(); ++i) {
        if (i > 0) text += '\t';
        text += listColumns.at(i).Text;
    }
    text += "\r\n";
    for (const ExportRow& row : list.rows) {
        text += row.Text;
        for (std::size_t i = 1; i < ExportList::columnCount(); ++i) {
            text += '\t';
            text += row.SubItems(i);
        }
        text += "\r\n";
    }
    return text + "\r\n";
}

}  // namespace catalogue
