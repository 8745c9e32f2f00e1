#include <fmt/format.h>

#include <algorithm>

#include "office/model/excel/objects.h"
#include "office/text.h"

namespace office::model::excel {

namespace {

constexpr std::int32_t worksheetType = -4167;
/// Any number but a worksheet's; Excel's own answer.
constexpr std::int32_t chartSheetType = 3;

/// As many UTF-16 units as a text has, which is how Excel counts.
std::size_t lengthOf(std::string_view text) {
    std::size_t units = 0;
    for (const Character& each : charactersOf(text)) units += each.code > 0xFFFF ? 2 : 1;
    return units;
}

bool isSheetName(const std::string& name) {
    constexpr std::size_t longest = 31;
    return !name.empty() && lengthOf(name) <= longest && !name.starts_with('\'') &&
           !name.ends_with('\'') && name.find_first_of(":\\/?*[]") == std::string::npos;
}

bool isTaken(const std::vector<std::string>& names, const std::string& name) {
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& each) { return sameIgnoringCase(each, name); });
}

void requireOpenStructure(Book& book, const std::string& source) {
    if (book.structureIsProtected()) refuse(source, "The structure of the workbook is protected");
}

/// Ahead of a sheet that is hidden or deleted.
void requireAnotherShown(const InSheet& home, const std::string& source) {
    const auto sheets = home.book->sheets();
    if (std::none_of(sheets.begin(), sheets.end(), [&](const SheetPtr& sheet) {
            return sheet != home.sheet && sheet->visibility() == Visibility::Shown;
        }))
        refuse(source, "A workbook needs a visible sheet");
}

void rename(const InSheet& home, const std::string& name) {
    constexpr const char* source = "Sheet.Name";
    requireOpenStructure(*home.book, source);
    requireThere(home, source);
    if (name == home.sheet->knownName()) return;
    const bool isOwn = sameIgnoringCase(name, home.sheet->knownName());
    if (isSheetName(name) && (isOwn || !isTaken(home.book->sheetNames(), name)))
        home.sheet->rename(name);
    // What lies below may refuse a name without a word.
    if (home.sheet->name() != name)
        refuse(source, fmt::format("A sheet can't have the name \"{}\"", name));
}

void setVisibility(const InSheet& home, const Value& wanted) {
    constexpr const char* source = "Sheet.Visible";
    requireThere(home, source);
    requireOpenStructure(*home.book, source);
    const std::int32_t state = wanted.toLong();
    const auto visibility = state == 0   ? Visibility::Hidden
                            : state == 2 ? Visibility::VeryHidden
                                         : Visibility::Shown;
    if (visibility != Visibility::Shown) requireAnotherShown(home, source);
    home.sheet->setVisibility(visibility);
}

void remove(const InSheet& home, const std::string& source) {
    requireOpenStructure(*home.book, source);
    requireThere(home, source);
    requireAnotherShown(home, source);
    home.book->removeSheet(home.sheet);
}

/// The members that are the same for both kinds of sheets.
template <class Self>
MemberTable<Self> tabMembers(const char* className, std::int32_t type) {
    const auto bringUp = [](Self& self, const CallArguments& arguments) {
        activateSheet(self.home(), arguments.source());
    };
    return MemberTable<Self>(className)
        .property(
            "Name", [](Self& self) { return self.sheet().name(); },
            [](Self& self, const Value& name) { rename(self.home(), name.toText()); })
        .property("Index", [](Self& self) { return self.sheet().place() + 1; })
        .property("Type", [type](Self&) { return type; })
        .property(
            "Visible",
            [](Self& self) { return static_cast<std::int32_t>(self.sheet().visibility()); },
            [](Self& self, const Value& wanted) { setVisibility(self.home(), wanted); })
        .property("Parent", [](Self& self) { return workbookObject(self.home()); })
        .method("Select", {"Replace"}, bringUp)
        .method("Activate", {}, bringUp)
        .method("Delete", {}, [](Self& self, const CallArguments& arguments) {
            remove(self.home(), arguments.source());
        });
}

/// A sheet of cells.
class Worksheet : public ObjectIn<Worksheet, InSheet> {
public:
    using ObjectIn::ObjectIn;

    static const MemberTable<Worksheet>& members() {
        using Self = Worksheet;
        static const auto table =
            tabMembers<Self>("Worksheet", worksheetType)
                .property("ChartObjects", {"Index"},
                          [](Self& self, const CallArguments& arguments) {
                              return arguments.has(0) ? chartObjectByIndex(self.home(), arguments)
                                                      : chartObjectsObject(self.home());
                          })
                .property("Range", {"Cell1", "Cell2"},
                          [](Self& self, const CallArguments& arguments) {
                              return rangeByArguments(self.home(), arguments);
                          })
                .property(
                    "Cells",
                    [](Self& self) { return rangeObject(self.home(), {CellBlock::wholeSheet()}); })
                .property("Columns", {"ColumnIndex"},
                          [](Self& self, const CallArguments& arguments) {
                              return columnsByArguments(self.home(), arguments);
                          })
                .property("UsedRange", [](Self& self) {
                    return rangeObject(self.home(), {self.sheet().used()});
                });
        return table;
    }
};

/// A sheet that is a chart.
class ChartSheet : public ObjectIn<ChartSheet, InSheet> {
public:
    using ObjectIn::ObjectIn;

    static const MemberTable<ChartSheet>& members() {
        using Self = ChartSheet;
        static const auto table =
            tabMembers<Self>("Chart", chartSheetType)
                .property("ChartArea",
                          [](Self& self) { return chartAreaObject(self.home(), nullptr); })
                .method("Export", {"Filename", "FilterName", "Interactive"},
                        [](Self& self, const CallArguments& arguments) {
                            exportPicture(*self.sheet().ownChart(), arguments);
                        })
                .method("CopyPicture", {"Appearance", "Format", "Size"}, [](Self& self) {
                    copyChart(self.home(), CopySource::Kind::Picture, nullptr);
                });
        return table;
    }
};

/// `Sheets`, `Worksheets` or `Charts` of a workbook, in the order of the tabs.
class Sheets : public ObjectIn<Sheets> {
public:
    Sheets(InBook home, SheetKind kind) : ObjectIn(std::move(home)), kind_(kind) {}

    static const MemberTable<Sheets>& members() {
        static const auto table =
            MemberTable<Sheets>("Sheets")
                .property("Count", [](Sheets& self) { return countOf(self.all().size()); })
                .property("Item", {"Index"}, &Sheets::item)
                .method("Add", {"Before", "After", "Count"}, &Sheets::add);
        return table;
    }

private:
    [[nodiscard]] bool holds(const SheetPtr& sheet) const {
        return kind_ == SheetKind::Any || sheet->isChartSheet() == (kind_ == SheetKind::ChartSheet);
    }
    [[nodiscard]] std::vector<SheetPtr> all() const {
        auto sheets = book().sheets();
        std::erase_if(sheets, [this](const SheetPtr& sheet) { return !holds(sheet); });
        return sheets;
    }

    Object item(const CallArguments& arguments);
    Object add(const CallArguments& arguments);

    SheetKind kind_;
};

Object Sheets::item(const CallArguments& arguments) {
    const ItemIndex index(arguments.at(0), arguments.source());
    if (index.isName()) {
        const SheetPtr found = book().findSheet(index.name());
        if (!found || !holds(found)) index.fail();
        return sheetObject(home(), found);
    }
    const auto sheets = all();
    return sheetObject(home(), sheets[index.placeBelow(sheets.size())]);
}

std::int32_t placeOfSheet(const Value& value, const std::string& source) {
    std::optional<InSheet> home;
    if (const auto worksheet = objectOf<Worksheet>(value)) home = worksheet->home();
    if (const auto chartSheet = objectOf<ChartSheet>(value)) home = chartSheet->home();
    if (!home)
        throw Failure(FailureNumber::TypeMismatch, source, "Type mismatch: a sheet is needed");
    requireThere(*home, source);
    return home->sheet->place();
}

/// Behind a sheet, or ahead of the active one. The sheet on top stays there; Excel would bring the
/// new one up.
Object Sheets::add(const CallArguments& arguments) {
    constexpr std::size_t after = 1;
    constexpr std::size_t count = 2;
    if (kind_ == SheetKind::ChartSheet || arguments.has(0) || arguments.at(count, 1).toLong() != 1)
        refuse(arguments.source(), "Worksheets alone are added, one at a time behind others");
    requireOpenStructure(book(), arguments.source());
    std::int32_t place = 0;
    if (arguments.has(after)) {
        place = placeOfSheet(arguments.at(after), arguments.source()) + 1;
    } else if (const SheetPtr active = book().activeSheet()) {
        place = active->place();
    }
    const auto names = book().sheetNames();
    std::size_t number = names.size();
    std::string name;
    do {
        name = fmt::format("Sheet{}", ++number);
    } while (isTaken(names, name));
    return sheetObject(home(), book().addSheet(name, place));
}

}  // namespace

Object sheetObject(const InBook& home, const SheetPtr& sheet) {
    if (!sheet) return {};
    if (sheet->isChartSheet()) return makeObject<ChartSheet>(InSheet{home, sheet});
    return makeObject<Worksheet>(InSheet{home, sheet});
}

Object sheetsObject(const InBook& home, SheetKind kind) {
    return makeObject<Sheets>(home, kind);
}

void requireThere(const InSheet& home, const std::string& source) {
    if (!home.sheet->isThere()) failGone(source);
}

void activateSheet(const InSheet& home, const std::string& source) {
    requireThere(home, source);
    if (home.sheet->visibility() != Visibility::Shown)
        refuse(source, fmt::format("The sheet \"{}\" is hidden", home.sheet->knownName()));
    home.sheet->activate();
}

std::optional<CellBlock> drawnPart(const CellBlock& block, Sheet& sheet) {
    if (!block.spansAllRows() && !block.spansAllColumns()) return block;
    return intersection(block, sheet.used());
}

}  // namespace office::model::excel
