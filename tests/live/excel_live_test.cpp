#include "live/excel_live_test.h"

#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/frame/XStorable.hpp>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/excel/application.h"

namespace live {

using namespace libreoffice;

void ExcelLive::SetUp() {
    desk_ = std::make_shared<Desk>(connection(), true);
    app = excel::applicationObject(desk_);
}

void ExcelLive::TearDown() {
    for (const auto& book : desk_->workbooks()) book->close();
}

Object ExcelLive::open(std::string_view name) {
    return app.get("Workbooks").call("Open", copyOf(MURVANE_TEST_BOOKS, name)).toObject();
}

Object ExcelLive::sheet(const Object& book, const Value& which) {
    return book.get("Sheets").get("Item", which).toObject();
}

std::vector<std::string> ExcelLive::namesIn(const Value& collection) {
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= collection.get("Count").toLong(); ++i) {
        names.push_back(collection.get("Item", i).get("Name").toText());
    }
    return names;
}

uno::Reference<css::frame::XModel> ExcelLive::model() const {
    return desk_->activeWorkbook()->model();
}

std::string ExcelLive::savedCopy() const {
    const std::string path = file("copy.xlsx");
    as<css::frame::XStorable>(model())->storeToURL(
        fileUrl(path),
        propertyValues({{"FilterName", uno::Any(rtl::OUString("Calc MS Excel 2007 XML"))}}));
    return path;
}

std::vector<std::string> ExcelLive::openDocuments() const {
    std::vector<std::string> urls;
    const auto all = connection()->desktop()->getComponents()->createEnumeration();
    while (all->hasMoreElements()) {
        const uno::Reference<css::frame::XModel> document(all->nextElement(), uno::UNO_QUERY);
        if (document.is()) urls.push_back(fromUno(document->getURL()));
    }
    return urls;
}

}  // namespace live
