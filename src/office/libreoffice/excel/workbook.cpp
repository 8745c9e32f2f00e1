#include "office/libreoffice/excel/workbook.h"

#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <fmt/format.h>

#include <filesystem>
#include <utility>

#include "office/libreoffice/excel/objects.h"

namespace libreoffice::excel {

namespace {

constexpr const char* workbookFilter = "Calc MS Excel 2007 XML";

Value sheetsOf(Workbook& self, SheetList::Kind kind) {
    return sheetsObject(self.deskPtr(), self.bookPtr(), kind);
}

}  // namespace

const office::MemberTable<Workbook>& Workbook::members() {
    using Self = Workbook;
    using Kind = SheetList::Kind;
    static const auto table =
        office::MemberTable<Self>("Workbook")
            .property("Name", &Self::name)
            .property("FullName", &Self::fullName)
            .property("Path", &Self::path)
            .property("Saved", &Self::isSaved, &Self::setSaved)
            .property("ReadOnly", &Self::isReadOnly)
            .property("ProtectStructure", &Self::structureIsProtected)
            .property("ActiveSheet", &Self::activeSheet)
            .property("Sheets",
                      [](Self& self, const CallArguments&) { return sheetsOf(self, Kind::Any); })
            .property(
                "Worksheets",
                [](Self& self, const CallArguments&) { return sheetsOf(self, Kind::Worksheet); })
            .property(
                "Charts",
                [](Self& self, const CallArguments&) { return sheetsOf(self, Kind::ChartSheet); })
            .property("Names",
                      [](Self& self, const CallArguments&) {
                          return namesObject(self.deskPtr(), self.bookPtr());
                      })
            .method("Activate", {}, &Self::activate)
            .method("Save", {}, &Self::save)
            .method("SaveCopyAs", {"Filename"}, &Self::saveCopyAs)
            .method("Close", {"SaveChanges", "Filename", "RouteWorkbook"}, &Self::close);
    return table;
}

Workbook::Workbook(DeskPtr desk, BookPtr book) : BookObject(std::move(desk), std::move(book)) {}

Value Workbook::name() {
    return book().name();
}

Value Workbook::fullName() {
    return book().fullName();
}

Value Workbook::path() {
    return std::filesystem::path(book().fullName()).parent_path().string();
}

Value Workbook::isSaved() {
    return !book().isModified();
}

void Workbook::setSaved(const Value& saved) {
    book().setModified(!saved.toBool());
}

Value Workbook::isReadOnly() {
    const bool readOnly = as<css::frame::XStorable>(book().model())->isReadonly();
    return readOnly;
}

Value Workbook::structureIsProtected() {
    return book().structureIsLocked(desk().connection());
}

Value Workbook::activeSheet() {
    return sheetObject(deskPtr(), bookPtr(), book().activeSheet(desk().connection()));
}

Value Workbook::activate(const CallArguments&) {
    if (const auto controller = book().controller(); controller.is())
        controller->getFrame()->activate();
    desk().setActive(bookPtr());
    return true;
}

Value Workbook::save(const CallArguments& arguments) {
    const auto storable = as<css::frame::XStorable>(book().model());
    if (!storable->hasLocation() || storable->isReadonly()) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      fmt::format("\"{}\" has no file that may be written", book().name()));
    }
    storable->store();
    return {};
}

Value Workbook::saveCopyAs(const CallArguments& arguments) {
    book().storeCopy(arguments.at(0).toText(), workbookFilter);
    return true;
}

Value Workbook::close(const CallArguments& arguments) {
    if (book().isModified()) {
        if (!arguments.has(0)) {
            throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                          fmt::format("\"{}\" has changes that are not saved", book().name()));
        }
        if (arguments.at(0).toBool()) save(arguments);
    }
    book().close();
    return true;
}

}  // namespace libreoffice::excel
