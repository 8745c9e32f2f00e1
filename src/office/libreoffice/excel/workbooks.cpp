#include "office/libreoffice/excel/workbooks.h"

#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <fmt/format.h>

#include <utility>

#include "office/libreoffice/excel/objects.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

enum OpenArgument : std::size_t { FileName = 0, ReadOnly = 2, Password = 4 };

bool isWorkbook(const uno::Reference<css::frame::XModel>& model) {
    return tryAs<css::sheet::XSpreadsheetDocument>(model).is();
}

}  // namespace

const office::MemberTable<Workbooks>& Workbooks::members() {
    static const auto table =
        office::MemberTable<Workbooks>("Workbooks")
            .property("Count", &Workbooks::count)
            .property("Item", {"Index"}, &Workbooks::item)
            .method("Open", {"FileName", "UpdateLinks", "ReadOnly", "Format", "Password"},
                    &Workbooks::open);
    return table;
}

Workbooks::Workbooks(DeskPtr desk) : UnoObject(std::move(desk)) {}

Value Workbooks::count() {
    return static_cast<std::int32_t>(desk().workbooks().size());
}

Value Workbooks::item(const CallArguments& arguments) {
    const ItemIndex index(arguments.at(0), arguments.source());
    const auto books = desk().workbooks();
    if (!index.isName()) return workbookObject(deskPtr(), books[index.placeBelow(books.size())]);
    for (const BookPtr& book : books) {
        if (office::sameIgnoringCase(book->name(), index.name()))
            return workbookObject(deskPtr(), book);
    }
    index.fail();
}

uno::Reference<css::frame::XModel> Workbooks::openFrom(const rtl::OUString& url) const {
    const auto components = desk().connection().desktop()->getComponents()->createEnumeration();
    while (components->hasMoreElements()) {
        const uno::Reference<uno::XInterface> component(components->nextElement(), uno::UNO_QUERY);
        const auto model = tryAs<css::frame::XModel>(component);
        if (model.is() && model->getURL() == url) return model;
    }
    return {};
}

Value Workbooks::open(const CallArguments& arguments) {
    const std::string file = arguments.at(FileName).toText();
    const rtl::OUString url = fileUrl(file);
    // Looked for first: loading an open file gives the user's own document, which is not ours to
    // close.
    auto model = openFrom(url);
    const bool wasOpen = model.is();
    if (!wasOpen) {
        model = desk().load(url, desk().opensHidden(), arguments.at(Password, "").toText(),
                            arguments.at(ReadOnly, false).toBool());
    }
    if (!isWorkbook(model)) {
        if (!wasOpen) as<css::util::XCloseable>(model)->close(true);
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      fmt::format("\"{}\" could not be opened: it is no workbook", file));
    }
    const BookPtr book = desk().workbook(model);
    desk().setActive(book);
    return workbookObject(deskPtr(), book);
}

}  // namespace libreoffice::excel
