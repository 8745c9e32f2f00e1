#include "office/libreoffice/excel/recovered_chart.h"

#include <com/sun/star/beans/NamedValue.hpp>
#include <com/sun/star/container/XHierarchicalNameAccess.hpp>
#include <com/sun/star/io/XActiveDataSink.hpp>
#include <com/sun/star/io/XInputStream.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/util/XChangesBatch.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <fmt/format.h>
#include <pugixml.hpp>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <system_error>
#include <utility>
#include <vector>

#include "office/failure.h"
#include "office/libreoffice/at_end.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/package_parts.h"

namespace libreoffice::excel {

namespace {

[[noreturn]] void fail(const SheetRecord& sheet, std::string_view why) {
    throw office::Failure(office::FailureNumber::ApplicationDefined, "Chart",
                          fmt::format("The chart of the chart sheet \"{}\" could not be read: {}",
                                      sheet.knownName(), why));
}

/// Moves what begins left of or above the page to its edge. Empty if nothing does.
std::string withoutNegativePlaces(const std::string& drawing) {
    pugi::xml_document document;
    if (!document.load_buffer(drawing.data(), drawing.size(), pugi::parse_full)) return {};
    bool mended = false;
    for (const pugi::xml_node anchor : document.document_element().children()) {
        for (pugi::xml_node place : anchor.children()) {
            if (!std::string_view(place.name()).ends_with("pos")) continue;
            for (pugi::xml_attribute side : place.attributes()) {
                if (side.as_llong() >= 0) continue;
                side.set_value(0);
                mended = true;
            }
        }
    }
    if (!mended) return {};
    std::ostringstream text;
    document.save(text, "", pugi::format_raw);
    return text.str();
}

void replacePart(const Connection& connection, const rtl::OUString& package,
                 const std::string& part, const std::string& text) {
    // Told that it is a plain archive; it would look for an OpenDocument manifest otherwise.
    const auto zip = connection.create(
        "com.sun.star.packages.Package",
        {uno::Any(package),
         uno::Any(css::beans::NamedValue("StorageFormat", uno::Any(rtl::OUString("ZipFormat"))))});
    uno::Reference<css::io::XActiveDataSink> sink(
        as<css::container::XHierarchicalNameAccess>(zip)->getByHierarchicalName(toUno(part)),
        uno::UNO_QUERY_THROW);
    const uno::Sequence<sal_Int8> bytes(reinterpret_cast<const sal_Int8*>(text.data()),
                                        static_cast<sal_Int32>(text.size()));
    sink->setInputStream(as<css::io::XInputStream>(
        connection.create("com.sun.star.io.SequenceInputStream", {uno::Any(bytes)})));
    as<css::util::XChangesBatch>(zip)->commitChanges();
}

}  // namespace

/// The copy of the workbook while it is open.
class RecoveredChart::OpenCopy {
public:
    explicit OpenCopy(uno::Reference<css::frame::XModel> model) : model_(std::move(model)) {}
    OpenCopy(const OpenCopy&) = delete;
    OpenCopy& operator=(const OpenCopy&) = delete;
    ~OpenCopy() {
        asFarAsPossible([&] { as<css::util::XCloseable>(model_)->close(true); });
    }

    [[nodiscard]] const uno::Reference<css::frame::XModel>& model() const { return model_; }
    [[nodiscard]] uno::Reference<css::sheet::XSpreadsheet> sheet(const std::string& name) const {
        return {as<css::sheet::XSpreadsheetDocument>(model_)->getSheets()->getByName(toUno(name)),
                uno::UNO_QUERY_THROW};
    }

private:
    uno::Reference<css::frame::XModel> model_;
};

RecoveredChart::RecoveredChart(SheetRecord& sheet) : sheet_(sheet.fileName) {
    const Connection& connection = sheet.book().connection();
    const rtl::OUString url = sheet.book().url();
    const auto parts = PackageParts::open(connection, url);
    if (!parts || sheet.part.empty() || !url.startsWith("file:"))
        fail(sheet, "its file is not at hand");
    const std::string drawing = parts->related(sheet.part, "/drawing");
    const std::string mended = withoutNegativePlaces(parts->read(drawing));
    if (mended.empty()) fail(sheet, "it has none");

    const std::string file = folder_.copyOf(pathOfUrl(url));
    const rtl::OUString copyUrl = fileUrl(file);
    replacePart(connection, copyUrl, drawing, mended);
    // Only looked at: nothing of it has to be made changeable.
    copy_ = std::make_unique<OpenCopy>(sheet.book().desk().load(copyUrl, true, {}, true));
    charts_ = std::make_unique<ChartShapes>(sheet.book(), copy_->sheet(sheet_));
    if (charts_->all().empty()) fail(sheet, "it has none");
    chart_ = charts_->all().front();
}

SheetOfChart RecoveredChart::home() const {
    return {copy_->model(), sheet_};
}

RecoveredChart::~RecoveredChart() {
    // LibreOffice lets a shape that is no longer held go on a thread of its own, which may be after
    // its document has been closed, and that ends the suite. So the shapes go here, at once.
    asFarAsPossible([&] {
        for (const ChartShapePtr& chart : charts_->all())
            as<css::lang::XComponent>(chart->shape())->dispose();
    });
}

}  // namespace libreoffice::excel
