#include "catalogue/save_list.h"

#include "office/failure_patterns.h"
#include "office/text.h"
#include "session/workbook_store.h"

namespace catalogue {

namespace {

namespace store = session::store;

/// The running order is a number in the store. Excel makes one of the text by the column's format;
/// other suites take a text for what it is.
office::Value orderOf(const std::string& text) {
    if (const auto number = office::numberOf(text)) return *number;
    return text;
}

}  // namespace

void SaveListToStore(session::OfficeSession& session, const ExportList& list) {
    office::ContinueOnFailure scope;
    office::Table block(list.rows.size(), store::columnCount);
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        const ExportRow& row = list.rows[i];
        block.at(i + 1, store::itemNameColumn) = row.Text;
        block.at(i + 1, store::sheetNameColumn) = row.SubItems(1);
        block.at(i + 1, store::slideNumberColumn) = row.SubItems(2);
        block.at(i + 1, store::orderColumn) = orderOf(row.SubItems(3));
        block.at(i + 1, store::includedColumn) = row.Checked;
        block.at(i + 1, store::itemKindColumn) = row.SubItems(5);
        block.at(i + 1, store::laterRowColumn) = row.SubItems(6);
        block.at(i + 1, store::itemKeyColumn) = row.SubItems(7);
        block.at(i + 1, store::captionColumn) = row.SubItems(4);
    }
    session::writeStoreRows(session, scope, std::move(block));
}

}  // namespace catalogue
