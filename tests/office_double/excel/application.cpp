#include "office_double/excel/application.h"

#include <algorithm>
#include <filesystem>

#include "office_double/excel/name.h"
#include "office_double/loose_object.h"

namespace office_double {

using Table = office::MemberTable<ExcelApplication>;

namespace {

std::string repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += text;
    return all;
}

/// As the worksheet function: inner runs of blanks become one.
std::string trimmed(const std::string& text) {
    std::string words;
    for (const char c : office::trim(text)) {
        if (c != ' ' || words.back() != ' ') words += c;
    }
    return words;
}

}  // namespace

const Table& ExcelApplication::members() {
    using Self = ExcelApplication;
    static const Table table = [] {
        Table made("Application");
        made.property("Name", reading([](Self&) { return "Microsoft Excel"; }))
            .property("Version", reading(&Self::version_))
            .property("Workbooks", &Self::readWorkbooks)
            .property("ActiveWorkbook", &Self::readActiveWorkbook)
            .property("ActiveSheet", &Self::readActiveSheet)
            .property("ActiveChart",
                      reading([](Self& self) { return valueOf(self.activeChart_.lock()); }))
            .property("Selection", reading([](Self& self) {
                          return self.selection_ ? Value(self.selection_) : Value();
                      }))
            .property("Sheets", ofBook("Sheets"))
            .property("Worksheets", ofBook("Worksheets"))
            .property("Charts", ofBook("Charts"))
            .property("Names", ofBook("Names"))
            .method("Range", {"Cell1", "Cell2"}, &Self::range)
            .method("Cells", {"RowIndex", "ColumnIndex"}, ofSheet(&Worksheet::cell))
            .method("Rows", {"RowIndex"}, ofSheet(&Worksheet::rows))
            .method("Columns", {"ColumnIndex"}, ofSheet(&Worksheet::columns))
            .method("Intersect", {"Arg1", "Arg2"}, &Self::intersect)
            .method("GetOpenFilename",
                    {"FileFilter", "FilterIndex", "Title", "ButtonText", "MultiSelect"},
                    reading(&Self::openPromptAnswer_));
        addSettings(made);
        addWorksheetFunctions(made);
        return made;
    }();
    return table;
}

void ExcelApplication::addSettings(Table& table) {
    for (const char* name :
         {"ScreenUpdating", "EnableEvents", "DisplayAlerts", "Calculation", "WindowState"}) {
        table.property(
            name,
            [name](ExcelApplication& self, const CallArguments&) { return self.settings_[name]; },
            [name](ExcelApplication& self, const CallArguments&, const Value& value) {
                Value& setting = self.settings_[name];
                setting = setting.isBool() ? Value(value.toBool()) : Value(value.toLong());
            });
    }
}

void ExcelApplication::addWorksheetFunctions(Table& table) {
    table
        .method("Rept", {"Arg1", "Arg2"},
                [](ExcelApplication&, const CallArguments& arguments) {
                    return Value(repeated(arguments.at(0).toText(), arguments.at(1).toLong()));
                })
        .method(
            "Substitute", {"Arg1", "Arg2", "Arg3"},
            [](ExcelApplication&, const CallArguments& arguments) {
                return Value(office::replaceAll(arguments.at(0).toText(), arguments.at(1).toText(),
                                                arguments.at(2).toText()));
            })
        .method("Trim", {"Arg1"},
                [](ExcelApplication&, const CallArguments& arguments) {
                    return Value(trimmed(arguments.at(0).toText()));
                })
        .method("Max", {"Arg1", "Arg2"}, [](ExcelApplication&, const CallArguments& arguments) {
            return Value(std::max(arguments.at(0).toDouble(), arguments.at(1).toDouble()));
        });
}

ExcelApplication::Reader ExcelApplication::ofSheet(Value (Worksheet::*read)(const CallArguments&)) {
    return [read](ExcelApplication& self, const CallArguments& arguments) {
        return (self.requiredSheet(arguments.source()).*read)(arguments);
    };
}

ExcelApplication::Reader ExcelApplication::ofBook(std::string member) {
    return [member](ExcelApplication& self, const CallArguments& arguments) {
        return self.requiredBook(arguments.source()).read(member, {});
    };
}

Workbook& ExcelApplication::addWorkbook(const std::string& name, const std::string& folder) {
    books_.push_back(std::make_shared<Workbook>(*this, folder, name));
    activate(*books_.back());
    return *books_.back();
}

void ExcelApplication::addFile(const std::string& path, std::function<void(Workbook&)> fill) {
    files_[path] = std::move(fill);
}

void ExcelApplication::selectRange(const std::string& address) {
    select(Object(requiredSheet("Application.Selection").find(address)));
}

void ExcelApplication::selectChart(Chart& chart) {
    select(chart.read("ChartArea", {}).toObject());
    activeChart_ = chart.weak_from_this();
}

void ExcelApplication::select(Object selection) {
    selection_ = std::move(selection);
    activeChart_.reset();
}

Workbook* ExcelApplication::activeWorkbook() const {
    if (const auto active = std::dynamic_pointer_cast<Workbook>(active_.lock())) {
        return active.get();
    }
    return books_.empty() ? nullptr : books_.front().get();
}

Workbook* ExcelApplication::findOpen(std::string_view name) const {
    for (const auto& book : books_) {
        if (office::sameIgnoringCase(book->name(), name)) return book.get();
    }
    return nullptr;
}

void ExcelApplication::closeBook(Workbook& book) {
    if (&book == activeWorkbook()) {
        select({});
        active_.reset();
    }
    book.remove();
    std::erase_if(books_, [&](const auto& held) { return held.get() == &book; });
}

Workbook& ExcelApplication::requiredBook(const std::string& source) const {
    Workbook* book = activeWorkbook();
    if (book != nullptr) return *book;
    throw Failure(FailureNumber::ApplicationDefined, source, "No workbook is open");
}

Worksheet& ExcelApplication::requiredSheet(const std::string& source) const {
    auto* sheet = dynamic_cast<Worksheet*>(requiredBook(source).activeTab().get());
    if (sheet != nullptr) return *sheet;
    throw Failure(FailureNumber::ApplicationDefined, source, "The active sheet is no worksheet");
}

Value ExcelApplication::readActiveWorkbook() {
    Workbook* book = activeWorkbook();
    return book == nullptr ? Value() : Value(book->handle());
}

Value ExcelApplication::readActiveSheet() {
    Workbook* book = activeWorkbook();
    return book == nullptr ? Value() : valueOf(book->activeTab());
}

Value ExcelApplication::readWorkbooks() {
    auto made = collection(*this, "Workbooks", [this] { return itemsOf(books_); });
    made->method("Open", {"FileName", "UpdateLinks", "ReadOnly", "Format", "Password"},
                 [this](const CallArguments& arguments) { return openBook(arguments); });
    return valueOf(made);
}

Value ExcelApplication::openBook(const CallArguments& arguments) {
    const std::filesystem::path path = arguments.at(0).toText();
    const auto file = files_.find(path.string());
    if (file == files_.end()) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "There is no workbook " + path.string());
    }
    Workbook& book = addWorkbook(path.filename().string(), path.parent_path().string());
    file->second(book);
    if (arguments.at(2, false).toBool()) book.readOnly();
    book.write("Saved", {}, true);
    return book.handle();
}

Value ExcelApplication::range(const CallArguments& arguments) {
    Worksheet& active = requiredSheet(arguments.source());
    if (!arguments.has(1) && arguments.at(0).isText()) {
        if (auto found = active.find(arguments.at(0).toText())) return Object(found);
    }
    // Two cells of another sheet make a range of that sheet.
    const auto given = doubleOf<Range>(arguments.at(0));
    return given ? given->sheet().range(arguments) : active.range(arguments);
}

Value ExcelApplication::intersect(const CallArguments& arguments) {
    const auto first = doubleOf<Range>(arguments.at(0));
    const auto second = doubleOf<Range>(arguments.at(1));
    if (!first || !second || &first->sheet() != &second->sheet()) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "Only ranges of one sheet can meet");
    }
    std::vector<Area> common;
    for (const Area& one : first->areas()) {
        for (const Area& other : second->areas()) {
            if (const auto meeting = intersection(one, other)) common.push_back(*meeting);
        }
    }
    return common.empty() ? Value() : first->sheet().rangeOf(std::move(common));
}

}  // namespace office_double
