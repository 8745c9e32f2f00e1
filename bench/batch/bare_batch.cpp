#include "bare_batch.h"

#include <com/sun/star/datatransfer/XTransferableSupplier.hpp>
#include <com/sun/star/datatransfer/clipboard/XClipboard.hpp>
#include <com/sun/star/document/XExporter.hpp>
#include <com/sun/star/document/XFilter.hpp>
#include <com/sun/star/drawing/XDrawPageSupplier.hpp>
#include <com/sun/star/drawing/XDrawPages.hpp>
#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/drawing/XDrawView.hpp>
#include <com/sun/star/drawing/XShapes.hpp>
#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>
#include <com/sun/star/graphic/XGraphicProvider.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>
#include <fmt/format.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/units.h"

namespace bench {

namespace {

using namespace libreoffice;

using catalogue::ExportFormat;
using Shape = uno::Reference<css::drawing::XShape>;
using Page = uno::Reference<css::drawing::XDrawPage>;

uno::Reference<css::lang::XComponent> open(const Connection& connection, const rtl::OUString& url) {
    return connection.desktop()->loadComponentFromURL(url, "_blank", 0,
                                                      propertyValues({{"Hidden", uno::Any(true)}}));
}

std::vector<Shape> chartsOf(const uno::Reference<css::lang::XComponent>& workbook) {
    std::vector<Shape> charts;
    const auto sheets = as<css::container::XIndexAccess>(
        as<css::sheet::XSpreadsheetDocument>(workbook)->getSheets());
    for (sal_Int32 s = 0; s < sheets->getCount(); ++s) {
        const uno::Reference<css::drawing::XDrawPageSupplier> sheet(sheets->getByIndex(s),
                                                                    uno::UNO_QUERY);
        const auto page = sheet->getDrawPage();
        for (sal_Int32 i = 0; i < page->getCount(); ++i) {
            charts.emplace_back(page->getByIndex(i), uno::UNO_QUERY);
        }
    }
    return charts;
}

/// At three times screen density, 288 to the inch.
std::int32_t crispPixelsOf(std::int32_t hundredthMm) {
    return static_cast<std::int32_t>(std::lround(hundredthMm * 288.0 / 2540.0));
}

void drawPicture(const Connection& connection, const Shape& chart, const rtl::OUString& url) {
    const css::awt::Size size = chart->getSize();
    const uno::Reference<uno::XInterface> filter =
        connection.create("com.sun.star.drawing.GraphicExportFilter");
    as<css::document::XExporter>(filter)->setSourceDocument(as<css::lang::XComponent>(chart));
    const auto data = propertyValues({{"PixelWidth", uno::Any(crispPixelsOf(size.Width))},
                                      {"PixelHeight", uno::Any(crispPixelsOf(size.Height))},
                                      {"LogicalWidth", uno::Any(size.Width)},
                                      {"LogicalHeight", uno::Any(size.Height)}});
    as<css::document::XFilter>(filter)->filter(
        propertyValues({{"URL", uno::Any(url)},
                        {"MediaType", uno::Any(rtl::OUString("image/png"))},
                        {"FilterData", uno::Any(data)}}));
}

void insertPicture(const Connection& connection, const uno::Reference<css::lang::XComponent>& deck,
                   const Page& page, const rtl::OUString& url) {
    const auto provider = as<css::graphic::XGraphicProvider>(
        connection.create("com.sun.star.graphic.GraphicProvider"));
    const auto graphic = provider->queryGraphic(propertyValues({{"URL", uno::Any(url)}}));
    const Shape shape(as<css::lang::XMultiServiceFactory>(deck)->createInstance(
                          "com.sun.star.drawing.GraphicObjectShape"),
                      uno::UNO_QUERY);
    as<css::drawing::XShapes>(page)->add(shape);
    setProperty(shape, "Graphic", graphic);
    shape->setSize(property<css::awt::Size>(graphic, "Size100thMM"));
}

uno::Any rangeOf(const uno::Reference<css::lang::XComponent>& workbook, int number) {
    const uno::Reference<css::table::XCellRange> sheet(
        as<css::sheet::XSpreadsheetDocument>(workbook)->getSheets()->getByName("Ranges"),
        uno::UNO_QUERY_THROW);
    return uno::Any(sheet->getCellRangeByName(
        toUno(fmt::format("A{}:F{}", number * 12 + 1, number * 12 + 10))));
}

/// Copies what is given in the workbook's window and pastes it on the page in one of the suite's
/// forms.
void paste(const Connection& connection, const uno::Reference<css::lang::XComponent>& workbook,
           const uno::Any& item, const uno::Reference<css::lang::XComponent>& deck,
           const Page& page, sal_uInt32 form) {
    namespace transfer = css::datatransfer;
    const auto from = as<css::frame::XModel>(workbook)->getCurrentController();
    const auto into = as<css::frame::XModel>(deck)->getCurrentController();
    as<css::view::XSelectionSupplier>(from)->select(item);
    as<transfer::clipboard::XClipboard>(
        connection.create("com.sun.star.datatransfer.clipboard.SystemClipboard"))
        ->setContents(as<transfer::XTransferableSupplier>(from)->getTransferable(), {});
    as<css::drawing::XDrawView>(into)->setCurrentPage(page);
    as<css::view::XSelectionSupplier>(into)->select(uno::Any());
    css::frame::DispatchHelper::create(connection.context())
        ->executeDispatch(as<css::frame::XDispatchProvider>(into->getFrame()),
                          ".uno:ClipboardFormatItems", rtl::OUString(), 0,
                          propertyValues({{"SelectedFormat", uno::Any(form)}}));
}

/// With a picture from the start, since a window would load the file to draw one.
void link(const uno::Reference<css::lang::XComponent>& deck, const Page& page,
          const rtl::OUString& url, const uno::Any& picture) {
    const Shape shape(
        as<css::lang::XMultiServiceFactory>(deck)->createInstance("com.sun.star.drawing.OLE2Shape"),
        uno::UNO_QUERY);
    as<css::drawing::XShapes>(page)->add(shape);
    setProperty(shape, "Graphic", picture);
    setProperty(shape, "LinkURL", url);
    setProperty(shape, "Graphic", picture);
    shape->setSize({12000, 7000});
}

}  // namespace

double runBareBatch(const Connection& connection, const std::string& workbook,
                    const std::string& output, int items, const MeasuredItems& what) {
    constexpr sal_uInt32 asObject = 85;
    constexpr sal_uInt32 asRichText = 145;
    const auto book = open(connection, fileUrl(workbook));
    const auto deck = open(connection, "private:factory/simpress");
    const std::vector<Shape> charts = chartsOf(book);
    const std::string picture = (std::filesystem::path(output).parent_path() / "bare.png").string();
    drawPicture(connection, charts.front(), fileUrl(picture));
    const uno::Any drawn(as<css::graphic::XGraphicProvider>(
                             connection.create("com.sun.star.graphic.GraphicProvider"))
                             ->queryGraphic(propertyValues({{"URL", uno::Any(fileUrl(picture))}})));

    const auto start = std::chrono::steady_clock::now();
    const auto pages = as<css::drawing::XDrawPagesSupplier>(deck)->getDrawPages();
    for (int i = 0; i < items; ++i) {
        const uno::Any item =
            what.areRanges ? rangeOf(book, i) : uno::Any(charts.at(static_cast<std::size_t>(i)));
        const auto newPage = [&] { return pages->insertNewByIndex(pages->getCount()); };
        if (what.format == ExportFormat::Pictures) {
            drawPicture(connection, charts.at(static_cast<std::size_t>(i)), fileUrl(picture));
            insertPicture(connection, deck, newPage(), fileUrl(picture));
        } else if (what.format == ExportFormat::Linked) {
            link(deck, newPage(), fileUrl(workbook), drawn);
        } else {
            const bool isTable = what.areRanges && what.format == ExportFormat::Editable;
            const Page page = newPage();
            paste(connection, book, item, deck, page, isTable ? asRichText : asObject);
            if (page->getCount() == 0) throw std::runtime_error("the bare paste brought nothing");
        }
    }
    as<css::frame::XStorable>(deck)->storeToURL(
        fileUrl(output),
        propertyValues(
            {{"FilterName", uno::Any(rtl::OUString("Impress MS PowerPoint 2007 XML"))}}));
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    as<css::util::XCloseable>(deck)->close(true);
    as<css::util::XCloseable>(book)->close(true);
    std::filesystem::remove(picture);
    return taken.count();
}

}  // namespace bench
