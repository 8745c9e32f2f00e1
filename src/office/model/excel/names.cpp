#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "office/model/excel/objects.h"
#include "office/text.h"

namespace office::model::excel {

namespace {

/// Where a name is kept: on a sheet, or in the workbook itself for a null sheet.
struct NameEntry {
    SheetPtr scope;
    std::string name;

    /// "Sales!Print_Area", or the bare name of a name of the workbook.
    [[nodiscard]] std::string fullName() const {
        return scope ? quotedSheet(scope->knownName()) + "!" + name : name;
    }
    [[nodiscard]] NameScope& in(Book& book) const { return scope ? scope->names() : book.names(); }
};

using NameEntries = std::vector<NameEntry>;

/// In the order of the alphabet; equal ones by sheet, the workbook's own last.
NameEntries listNames(Book& book) {
    NameEntries names;
    const auto append = [&](const SheetPtr& scope) {
        for (std::string& name : (scope ? scope->names() : book.names()).all())
            names.push_back({scope, std::move(name)});
    };
    for (const SheetPtr& sheet : book.sheets()) append(sheet);
    append(nullptr);
    std::stable_sort(names.begin(), names.end(), [](const NameEntry& one, const NameEntry& other) {
        return lowerCase(one.name) < lowerCase(other.name);
    });
    return names;
}

std::optional<NameEntry> findIn(Book& book, const SheetPtr& scope, std::string_view name) {
    NameEntry entry{scope, std::string(name)};
    return entry.in(book).has(name) ? std::optional(entry) : std::nullopt;
}

/// With its sheet, or without; without, the active sheet's own goes ahead of the workbook's, and
/// that ahead of those of other sheets.
std::optional<NameEntry> findName(Book& book, std::string_view name) {
    if (const auto split = splitSheet(name)) {
        const SheetPtr sheet = book.findSheet(split->sheet);
        return sheet ? findIn(book, sheet, split->text) : std::nullopt;
    }
    const SheetPtr active = book.activeSheet();
    if (active) {
        if (auto local = findIn(book, active, name)) return local;
    }
    if (auto own = findIn(book, nullptr, name)) return own;
    for (const SheetPtr& sheet : book.sheets()) {
        if (sheet == active) continue;
        if (auto local = findIn(book, sheet, name)) return local;
    }
    return std::nullopt;
}

std::optional<RangePlace> placeOf(const InBook& home, const NameEntry& entry) {
    auto cells = entry.in(*home.book).cells(entry.name);
    if (!cells) return std::nullopt;
    return RangePlace{{{home.guard, home.books, cells->book}, cells->sheet},
                      std::move(cells->blocks)};
}

/// A defined name.
class Name : public ObjectIn<Name> {
public:
    Name(InBook home, NameEntry entry) : ObjectIn(std::move(home)), entry_(std::move(entry)) {}

    static const MemberTable<Name>& members() {
        static const auto table =
            MemberTable<Name>("Name")
                .property("Name", [](Name& self) { return self.entry_.fullName(); })
                .property("RefersToRange", &Name::range)
                .property("Visible", [](Name& self) {
                    return self.entry_.in(self.book()).isVisible(self.entry_.name);
                });
        return table;
    }

private:
    Object range() {
        if (auto place = placeOf(home(), entry_))
            return rangeObject(place->home, std::move(place->blocks));
        refuse("Name.RefersToRange",
               fmt::format("The name \"{}\" stands for no range", entry_.fullName()));
    }

    NameEntry entry_;
};

/// The defined names of a workbook, those of its sheets included. A list that is held keeps its
/// order; counting reads it anew.
class Names : public ObjectIn<Names> {
public:
    using ObjectIn::ObjectIn;

    static const MemberTable<Names>& members() {
        static const auto table =
            MemberTable<Names>("Names")
                .property("Count",
                          [](Names& self) {
                              self.entries_ = listNames(self.book());
                              return countOf(self.entries_->size());
                          })
                .property("Item", {"Index"}, &Names::item)
                .method("Add",
                        {"Name", "RefersTo", "Visible", "MacroType", "ShortcutKey", "Category",
                         "NameLocal", "RefersToLocal", "CategoryLocal", "RefersToR1C1"},
                        &Names::add);
        return table;
    }

private:
    Object item(const CallArguments& arguments);
    Object add(const CallArguments& arguments);
    [[nodiscard]] NameEntry entryToAdd(const std::string& name, const std::string& source) const;

    std::optional<NameEntries> entries_;
};

Object Names::item(const CallArguments& arguments) {
    const ItemIndex index(arguments.at(0), arguments.source());
    if (index.isName()) {
        const auto found = findName(book(), index.name());
        if (!found) index.fail();
        return makeObject<Name>(home(), *found);
    }
    if (!entries_) entries_ = listNames(book());
    return makeObject<Name>(home(), (*entries_)[index.placeBelow(entries_->size())]);
}

/// A letter or "_" first, and nothing that could be read as cells.
bool isName(const std::string& name) {
    const bool begins = !name.empty() && (std::isalpha(static_cast<unsigned char>(name.front())) ||
                                          name.front() == '_' || (name.front() & '\x80') != 0);
    return begins && !blockOf(name) && name.find_first_of(" !'\"") == std::string::npos;
}

NameEntry Names::entryToAdd(const std::string& name, const std::string& source) const {
    const auto split = splitSheet(name);
    NameEntry entry{split ? book().findSheet(split->sheet) : nullptr, split ? split->text : name};
    if (split && !entry.scope)
        refuse(source, fmt::format("There is no sheet \"{}\"", split->sheet));
    if (!isName(entry.name)) refuse(source, fmt::format("A name can't be \"{}\"", entry.name));
    return entry;
}

/// Only cells get names here: nothing else is ever named.
Object Names::add(const CallArguments& arguments) {
    enum Argument : std::size_t { NameText = 0, RefersTo = 1, Visible = 2, RefersToR1C1 = 9 };
    const NameEntry entry = entryToAdd(arguments.at(NameText).toText(), arguments.source());
    const bool isR1C1 = arguments.has(RefersToR1C1);
    const std::string formula = arguments.at(isR1C1 ? RefersToR1C1 : RefersTo).toText();
    const auto cells = cellsOfFormula(formula, isR1C1 ? Notation::R1C1 : Notation::A1);
    if (!cells) refuse(arguments.source(), fmt::format("\"{}\" are no cells", formula));
    entry.in(book()).define(entry.name, *cells, arguments.at(Visible, true).toBool());
    entries_.reset();
    return makeObject<Name>(home(), entry);
}

}  // namespace

Object namesObject(const InBook& home) {
    return makeObject<Names>(home);
}

std::optional<RangePlace> findCells(const InSheet& home, std::string_view text) {
    InSheet where = home;
    std::string name(text);
    if (const auto split = splitSheet(text)) {
        where.sheet = home.book->findSheet(split->sheet);
        if (!where.sheet) return std::nullopt;
        name = split->text;
    }
    if (auto blocks = blocksOf(name)) return RangePlace{where, std::move(*blocks)};
    for (const SheetPtr& scope : {where.sheet, SheetPtr()}) {
        if (const auto entry = findIn(*home.book, scope, name)) return placeOf(home, *entry);
    }
    return std::nullopt;
}

}  // namespace office::model::excel
