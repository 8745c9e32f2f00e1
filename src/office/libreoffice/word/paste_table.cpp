#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/document/XDocumentInsertable.hpp>
#include <com/sun/star/embed/ElementModes.hpp>
#include <com/sun/star/embed/StorageFactory.hpp>
#include <com/sun/star/embed/XStorage.hpp>
#include <com/sun/star/embed/XTransactedObject.hpp>
#include <com/sun/star/io/XSeekable.hpp>
#include <com/sun/star/io/XStream.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/style/BreakType.hpp>
#include <com/sun/star/text/XParagraphCursor.hpp>

#include <algorithm>
#include <array>

#include "office/failure.h"
#include "office/libreoffice/objects/new_object.h"
#include "office/libreoffice/word/table_text.h"
#include "office/libreoffice/word/writer_document.h"

namespace libreoffice::word {

namespace {

/// The document that holds a table, in memory.
uno::Reference<css::io::XStream> packageOf(const Connection& connection,
                                           const std::string& content) {
    constexpr sal_Int32 mode = css::embed::ElementModes::READWRITE;
    auto file = as<css::io::XStream>(connection.create("com.sun.star.io.TempFile"));
    const std::array<uno::Any, 2> arguments = {uno::Any(file), uno::Any(mode)};
// Marked as deprecated, yet the only way to a storage of one's own.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    const uno::Reference<css::embed::XStorage> package(
        css::embed::StorageFactory::create(connection.context())
            ->createInstanceWithArguments(
                {arguments.data(), static_cast<sal_Int32>(arguments.size())}),
        uno::UNO_QUERY_THROW);
#pragma GCC diagnostic pop
    setProperty(package, "MediaType", rtl::OUString("application/vnd.oasis.opendocument.text"));
    objects::writeXml(package, "content.xml", content);
    as<css::embed::XTransactedObject>(package)->commit();
    as<css::lang::XComponent>(package)->dispose();
    as<css::io::XSeekable>(file)->seek(0);
    return file;
}

uno::Reference<uno::XInterface> tableOf(const uno::Reference<css::text::XTextCursor>& place) {
    return property<uno::Reference<uno::XInterface>>(place, "TextTable");
}

/// A table splits the paragraph that it is put into. An empty one ahead of it goes, unless it keeps
/// two tables apart or begins a page.
void removeEmptyParagraphAhead(const uno::Reference<css::text::XTextCursor>& table) {
    const auto start = table->getStart();
    const auto text = start->getText();
    const auto cursor = text->createTextCursorByRange(start);
    const auto ends = as<css::text::XParagraphCursor>(cursor);
    if (!ends->isStartOfParagraph() || !ends->isEndOfParagraph() ||
        property<css::style::BreakType>(cursor, "BreakType") != css::style::BreakType_NONE)
        return;
    const auto before = text->createTextCursorByRange(start);
    if (before->goLeft(1, false) && tableOf(before) != tableOf(cursor)) return;
    const auto paragraphs = as<css::container::XEnumerationAccess>(cursor)->createEnumeration();
    uno::Reference<css::lang::XComponent>(paragraphs->nextElement(), uno::UNO_QUERY_THROW)
        ->dispose();
}

}  // namespace

/// What is built by calls takes seconds; what is read like a file, some milliseconds.
void WriterDocument::insertTable(const TextPlace& place, const office::TableLook& table) {
    const double scale = std::min(1.0, lineWidth() / table.widthPt());
    const auto package = packageOf(desk_.connection(), tableText(table, scale));
    const std::int32_t before = tableCount();
    const auto inserted = place.text->createTextCursorByRange(place.start());
    as<css::document::XDocumentInsertable>(inserted)->insertDocumentFromURL(
        "private:stream", propertyValues({{"InputStream", uno::Any(package->getInputStream())},
                                          {"FilterName", uno::Any(rtl::OUString("writer8"))}}));
    if (tableCount() != before + 1)
        office::refuse("Selection.PasteSpecial", "LibreOffice takes no table here");
    removeSelected(place);
    removeEmptyParagraphAhead(inserted);
}

}  // namespace libreoffice::word
