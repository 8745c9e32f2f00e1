#include <fmt/format.h>

#include "office/model/excel/objects.h"

namespace office::model::excel {

namespace {

/// An open workbook.
class Workbook : public ObjectIn<Workbook> {
public:
    using ObjectIn::ObjectIn;

    static const MemberTable<Workbook>& members();

private:
    void close(const CallArguments& arguments);
};

const MemberTable<Workbook>& Workbook::members() {
    using Self = Workbook;
    const auto sheets = [](SheetKind kind) {
        return [kind](Self& self) { return sheetsObject(self.home(), kind); };
    };
    static const auto table =
        MemberTable<Self>("Workbook")
            .property("Name", [](Self& self) { return self.book().name(); })
            .property("FullName", [](Self& self) { return self.book().fullName(); })
            // Excel has no such member; its names change with the file's.
            .property("Identity", [](Self& self) { return self.book().identity(); })
            .property(
                "Saved", [](Self& self) { return !self.book().isModified(); },
                [](Self& self, const Value& saved) { self.book().setModified(!saved.toBool()); })
            .property("ReadOnly", [](Self& self) { return self.book().isReadOnly(); })
            .property("ProtectStructure",
                      [](Self& self) { return self.book().structureIsProtected(); })
            .property("ActiveSheet",
                      [](Self& self) {
                          return valueOf(sheetObject(self.home(), self.book().activeSheet()));
                      })
            .property("ActiveChart", [](Self& self) { return activeChart(self.home()); })
            .property("Sheets", sheets(SheetKind::Any))
            .property("Worksheets", sheets(SheetKind::Worksheet))
            .property("Charts", sheets(SheetKind::ChartSheet))
            .property("Names", [](Self& self) { return namesObject(self.home()); })
            .property("PublishObjects",
                      [](Self& self) { return publishObjectsObject(self.home()); })
            .method("Activate", {}, [](Self& self) { self.book().activate(); })
            .method("Close", {"SaveChanges"}, &Self::close);
    return table;
}

/// Closing never saves, and nobody is there to be asked: a changed workbook is closed only by being
/// told not to save.
void Workbook::close(const CallArguments& arguments) {
    if (book().isModified() && arguments.at(0, true).toBool())
        refuse(arguments.source(),
               fmt::format("\"{}\" has changes that are not saved", book().name()));
    book().close();
}

/// The open workbooks.
class Workbooks : public ModelObject<Workbooks> {
public:
    Workbooks(GuardPtr guard, BooksPtr books)
        : ModelObject(std::move(guard)),
          books_(std::move(books)) {}

    static const MemberTable<Workbooks>& members() {
        using Self = Workbooks;
        static const auto table =
            MemberTable<Self>("Workbooks")
                .property("Count", [](Self& self) { return countOf(self.books_->open().size()); })
                .property(
                    "Item", {"Index"},
                    [](Self& self, const CallArguments& arguments) {
                        const ItemIndex index(arguments.at(0), arguments.source());
                        return self.object(index.of(
                            self.books_->open(), [](const BookPtr& book) { return book->name(); }));
                    })
                .method(
                    "Open", {"FileName", "UpdateLinks", "ReadOnly", "Format", "Password"},
                    [](Self& self, const CallArguments& arguments) {
                        enum Argument : std::size_t { FileName = 0, ReadOnly = 2, Password = 4 };
                        return self.object(self.books_->load(
                            arguments.at(FileName).toText(), arguments.at(Password, "").toText(),
                            arguments.at(ReadOnly, false).toBool()));
                    });
        return table;
    }

private:
    [[nodiscard]] Object object(BookPtr book) const {
        return workbookObject({guard(), books_, std::move(book)});
    }

    BooksPtr books_;
};

}  // namespace

Object workbooksObject(GuardPtr guard, BooksPtr books) {
    return makeObject<Workbooks>(std::move(guard), std::move(books));
}

Object workbookObject(const InBook& home) {
    return makeObject<Workbook>(home);
}

}  // namespace office::model::excel
