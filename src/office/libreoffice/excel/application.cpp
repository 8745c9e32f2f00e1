#include "office/libreoffice/excel/application.h"

#include <utility>

#include "office/libreoffice/excel/application_object.h"
#include "office/libreoffice/excel/objects.h"
#include "office/libreoffice/excel/open_prompt.h"
#include "office/libreoffice/excel/range.h"
#include "office/libreoffice/excel/range_lookup.h"
#include "office/libreoffice/excel/selection.h"
#include "office/libreoffice/excel/workbooks.h"
#include "office/libreoffice/excel/worksheet_functions.h"

namespace libreoffice::excel {

namespace {

using Table = office::MemberTable<Application>;

Table::Reader always(const char* text) {
    return [text](Application&, const CallArguments&) { return Value(text); };
}

/// A collection of the active workbook.
template <class Make>
Table::Reader ofBook(Make make) {
    return [make](Application& self, const CallArguments& arguments) {
        return make(self.deskPtr(), self.requiredBook(arguments.source()));
    };
}

template <class Setting>
void addSetting(Table& table, const char* name, Setting Desk::*where,
                Setting (Value::*as)() const) {
    table.property(
        name,
        [where](Application& self, const CallArguments&) { return Value(self.desk().*where); },
        [where, as](Application& self, const CallArguments&, const Value& value) {
            self.desk().*where = (value.*as)();
        });
}

}  // namespace

office::Object applicationObject(DeskPtr desk) {
    return makeObject<Application>(std::move(desk));
}

Application::Application(DeskPtr desk) : UnoObject(std::move(desk)) {}

const Table& Application::members() {
    static const Table table = [] {
        Table made("Application");
        made.property("Name", always("Microsoft Excel")).property("Version", always("16.0"));
        addBookMembers(made);
        addSettings(made);
        addWorksheetFunctions(made);
        return made;
    }();
    return table;
}

void Application::addBookMembers(Table& table) {
    using Kind = SheetList::Kind;
    const auto sheets = [](Kind kind) {
        return ofBook([kind](const DeskPtr& desk, const BookPtr& book) {
            return sheetsObject(desk, book, kind);
        });
    };
    table.property("Workbooks", &Application::workbooks)
        .property("ActiveWorkbook", &Application::activeWorkbook)
        .property("ActiveSheet", &Application::activeSheet)
        .property("ActiveChart", &Application::activeChart)
        .property("Selection", &Application::selection)
        .property("Sheets", sheets(Kind::Any))
        .property("Worksheets", sheets(Kind::Worksheet))
        .property("Charts", sheets(Kind::ChartSheet))
        .property("Names", ofBook([](const DeskPtr& desk, const BookPtr& book) {
                      return namesObject(desk, book);
                  }))
        .property("Range", {"Cell1", "Cell2"}, &Application::range)
        .property("Cells", {"RowIndex", "ColumnIndex"}, &Application::cells)
        .property("Rows", {"RowIndex"}, &Application::rows)
        .property("Columns", {"ColumnIndex"}, &Application::columns)
        .method("Intersect", {"Arg1", "Arg2"}, &Application::intersect)
        .method("GetOpenFilename",
                {"FileFilter", "FilterIndex", "Title", "ButtonText", "MultiSelect"},
                [](Application& self, const CallArguments& arguments) {
                    return askForFile(self.desk(), arguments.at(0, "").toText(),
                                      arguments.at(2, "").toText());
                });
}

void Application::addSettings(Table& table) {
    addSetting(table, "ScreenUpdating", &Desk::screenUpdating, &Value::toBool);
    addSetting(table, "EnableEvents", &Desk::enableEvents, &Value::toBool);
    addSetting(table, "DisplayAlerts", &Desk::displayAlerts, &Value::toBool);
    addSetting(table, "Calculation", &Desk::calculation, &Value::toLong);
    addSetting(table, "WindowState", &Desk::excelWindowState, &Value::toLong);
}

BookPtr Application::requiredBook(const std::string& source) const {
    if (auto book = desk().activeWorkbook()) return book;
    throw Failure(FailureNumber::ApplicationDefined, source, "No workbook is open");
}

SheetPtr Application::requiredWorksheet(const BookPtr& book, const std::string& source) const {
    SheetPtr sheet = book->activeSheet(desk().connection());
    if (sheet && !sheet->isChartSheet) return sheet;
    throw Failure(FailureNumber::ApplicationDefined, source, "The active sheet is no worksheet");
}

Value Application::activeWorkbook() {
    const BookPtr book = desk().activeWorkbook();
    return book ? workbookObject(deskPtr(), book) : Value();
}

Value Application::activeSheet() {
    const BookPtr book = desk().activeWorkbook();
    return book ? sheetObject(deskPtr(), book, book->activeSheet(desk().connection())) : Value();
}

Value Application::activeChart() {
    const BookPtr book = desk().activeWorkbook();
    return book ? activeChartOf(deskPtr(), book) : Value();
}

Value Application::selection() {
    const BookPtr book = desk().activeWorkbook();
    return book ? selectionIn(deskPtr(), book) : Value();
}

Value Application::workbooks() {
    return makeObject<Workbooks>(deskPtr());
}

Value Application::range(const CallArguments& arguments) {
    const std::string& source = arguments.source();
    if (arguments.at(0).isObject()) {
        const Range& given = rangeOf(arguments.at(0), source);
        return rangeByArguments(deskPtr(), given.bookPtr(), given.sheetPtr(), arguments, true);
    }
    const BookPtr book = requiredBook(source);
    return rangeByArguments(deskPtr(), book, requiredWorksheet(book, source), arguments, true);
}

Value Application::cells(const CallArguments& arguments) {
    const BookPtr book = requiredBook(arguments.source());
    return cellsByArguments(deskPtr(), book, requiredWorksheet(book, arguments.source()),
                            arguments);
}

Value Application::rows(const CallArguments& arguments) {
    const BookPtr book = requiredBook(arguments.source());
    return rowsByArguments(deskPtr(), book, requiredWorksheet(book, arguments.source()), arguments);
}

Value Application::columns(const CallArguments& arguments) {
    const BookPtr book = requiredBook(arguments.source());
    return columnsByArguments(deskPtr(), book, requiredWorksheet(book, arguments.source()),
                              arguments);
}

Value Application::intersect(const CallArguments& arguments) {
    const Range& one = rangeOf(arguments.at(0), arguments.source());
    const Range& other = rangeOf(arguments.at(1), arguments.source());
    if (one.sheetPtr() != other.sheetPtr()) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "Only ranges of one sheet can meet");
    }
    CellBlocks common;
    for (const CellBlock& block : one.blocks()) {
        for (const CellBlock& otherBlock : other.blocks()) {
            if (const auto meeting = intersection(block, otherBlock)) common.push_back(*meeting);
        }
    }
    if (common.empty()) return {};
    return rangeObject(deskPtr(), one.bookPtr(), one.sheetPtr(), std::move(common));
}

}  // namespace libreoffice::excel
