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

    template <class Read>
    static auto ofActive(Read read);
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
        MemberTable<Self> made("Application");
        made.property("Workbooks",
                      [](Self& self) { return workbooksObject(self.guard(), self.books_); })
            .property("ActiveWorkbook", ofActive(workbookObject))
            .property("ActiveSheet", ofActive([](const InBook& home) {
                          return valueOf(sheetObject(home, home.book->activeSheet()));
                      }))
            .property("Selection", ofActive(selectionObject))
            .property("Range", {"Cell1", "Cell2"}, &Self::range)
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

/// Takes cells: which sheet an address alone means is for the caller to say.
Object Application::range(const CallArguments& arguments) {
    return rangeByArguments(placeOfRange(arguments.at(0), arguments.source()).home, arguments);
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
