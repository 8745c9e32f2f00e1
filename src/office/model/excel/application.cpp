#include <algorithm>

#include "office/model/excel/objects.h"

namespace office::model::excel {

namespace {

/// The application. What concerns a workbook goes to the active one.
class Application : public ModelObject<Application> {
public:
    Application(GuardPtr guard, BooksPtr books)
        : ModelObject(std::move(guard)),
          books_(std::move(books)) {}

    static const MemberTable<Application>& members();

private:
    /// Where the active workbook is; its book is null with none open.
    [[nodiscard]] InBook active() const { return {guard(), books_, books_->active()}; }
    /// `Failure` 1004 with none open.
    [[nodiscard]] InBook requiredBook(const std::string& source) const;
    /// `Failure` 1004 if a chart sheet is on top.
    [[nodiscard]] InSheet requiredWorksheet(const std::string& source) const;

    template <class Read>
    static auto ofActive(Read read);
    template <class Read>
    static auto ofBook(Read read);
    template <class Read>
    static auto ofWorksheet(Read read);
    template <class Field>
    static void addSetting(MemberTable<Application>& table, const char* name,
                           Field Settings::*field, Field (Value::*as)() const);

    Object range(const CallArguments& arguments);
    Value intersect(const CallArguments& arguments);

    BooksPtr books_;
};

/// A member of the active workbook; empty with none open.
template <class Read>
auto Application::ofActive(Read read) {
    return [read](Application& self) {
        const InBook home = self.active();
        return home.book ? Value(read(home)) : Value();
    };
}

/// One that fails with none open.
template <class Read>
auto Application::ofBook(Read read) {
    return [read](Application& self, const CallArguments& arguments) {
        return read(self.requiredBook(arguments.source()));
    };
}

template <class Read>
auto Application::ofWorksheet(Read read) {
    return [read](Application& self, const CallArguments& arguments) {
        return read(self.requiredWorksheet(arguments.source()), arguments);
    };
}

template <class Field>
void Application::addSetting(MemberTable<Application>& table, const char* name,
                             Field Settings::*field, Field (Value::*as)() const) {
    table.property(
        name, [field](Application& self) { return self.books_->settings().*field; },
        [field, as](Application& self, const Value& value) {
            self.books_->settings().*field = (value.*as)();
        });
}

const MemberTable<Application>& Application::members() {
    using Self = Application;
    static const auto table = [] {
        const auto sheets = [](SheetKind kind) {
            return ofBook([kind](const InBook& home) { return sheetsObject(home, kind); });
        };
        const auto lines = [](RangeUnit unit) {
            return ofWorksheet([unit](const InSheet& home, const CallArguments& arguments) {
                return linesByArguments(home, arguments, unit);
            });
        };
        MemberTable<Self> made("Application");
        made.property("Name", [](Self&) { return "Microsoft Excel"; })
            .property("Version", [](Self& self) { return self.books_->version(); })
            .property("Workbooks",
                      [](Self& self) { return workbooksObject(self.guard(), self.books_); })
            .property("ActiveWorkbook", ofActive(workbookObject))
            .property("ActiveSheet", ofActive([](const InBook& home) {
                          return valueOf(sheetObject(home, home.book->activeSheet()));
                      }))
            .property("ActiveChart", ofActive(activeChart))
            .property("Selection", ofActive(selectionObject))
            .property("Sheets", sheets(SheetKind::Any))
            .property("Worksheets", sheets(SheetKind::Worksheet))
            .property("Charts", sheets(SheetKind::ChartSheet))
            .property("Names", ofBook([](const InBook& home) { return namesObject(home); }))
            .property("Range", {"Cell1", "Cell2"}, &Self::range)
            .property("Cells", {"RowIndex", "ColumnIndex"}, ofWorksheet(cellsByArguments))
            .property("Rows", {"RowIndex"}, lines(RangeUnit::Rows))
            .property("Columns", {"ColumnIndex"}, lines(RangeUnit::Columns))
            .method("Intersect", {"Arg1", "Arg2"}, &Self::intersect)
            .method("Max", {"Arg1", "Arg2"},
                    [](Self&, const CallArguments& arguments) {
                        return std::max(arguments.at(0).toDouble(), arguments.at(1).toDouble());
                    })
            .method("GetOpenFilename",
                    {"FileFilter", "FilterIndex", "Title", "ButtonText", "MultiSelect"},
                    [](Self& self, const CallArguments& arguments) {
                        return self.books_->askForFile(arguments.at(0, "").toText(),
                                                       arguments.at(2, "").toText());
                    });
        addSetting(made, "ScreenUpdating", &Settings::screenUpdating, &Value::toBool);
        addSetting(made, "EnableEvents", &Settings::enableEvents, &Value::toBool);
        addSetting(made, "DisplayAlerts", &Settings::displayAlerts, &Value::toBool);
        addSetting(made, "Calculation", &Settings::calculation, &Value::toLong);
        addSetting(made, "WindowState", &Settings::windowState, &Value::toLong);
        return made;
    }();
    return table;
}

InBook Application::requiredBook(const std::string& source) const {
    InBook home = active();
    if (!home.book) refuse(source, "No workbook is open");
    return home;
}

InSheet Application::requiredWorksheet(const std::string& source) const {
    InBook home = requiredBook(source);
    SheetPtr sheet = home.book->activeSheet();
    if (!sheet || sheet->isChartSheet()) refuse(source, "The active sheet is no worksheet");
    return {std::move(home), std::move(sheet)};
}

/// Two cells of another sheet make a range of that sheet.
Object Application::range(const CallArguments& arguments) {
    const std::string& source = arguments.source();
    return rangeByArguments(arguments.at(0).isObject() ? placeOfRange(arguments.at(0), source).home
                                                       : requiredWorksheet(source),
                            arguments, true);
}

/// The cells that two ranges of one sheet share; empty if they share none.
Value Application::intersect(const CallArguments& arguments) {
    const RangePlace one = placeOfRange(arguments.at(0), arguments.source());
    const RangePlace other = placeOfRange(arguments.at(1), arguments.source());
    if (one.home.sheet != other.home.sheet)
        refuse(arguments.source(), "Only ranges of one sheet can meet");
    CellBlocks common = intersection(one.blocks, other.blocks);
    return common.empty() ? Value() : Value(rangeObject(one.home, std::move(common)));
}

}  // namespace

Object applicationObject(GuardPtr guard, BooksPtr books) {
    return makeObject<Application>(std::move(guard), std::move(books));
}

Value selectionObject(const InBook& home) {
    const Selection selected = home.book->selection();
    const InSheet place{home, selected.sheet};
    if (selected.chart) return chartAreaObject(place, selected.chart);
    if (selected.blocks.empty()) return {};
    return rangeObject(place, selected.blocks);
}

Value activeChart(const InBook& home) {
    const SheetPtr active = home.book->activeSheet();
    if (active && active->isChartSheet()) return sheetObject(home, active);
    const Selection selected = home.book->selection();
    return selected.chart ? Value(chartObject({home, selected.sheet}, selected.chart)) : Value();
}

}  // namespace office::model::excel
