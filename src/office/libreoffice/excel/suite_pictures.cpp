#include "office/libreoffice/excel/suite_pictures.h"

#include <com/sun/star/chart/XChartDocument.hpp>
#include <com/sun/star/document/XFilter.hpp>
#include <com/sun/star/drawing/FillStyle.hpp>
#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/frame/XLoadable.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/util/XCloseable.hpp>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <system_error>
#include <utility>

#include "office/failure.h"
#include "office/files.h"
#include "office/libreoffice/at_end.h"
#include "office/libreoffice/excel/picture_file.h"
#include "office/libreoffice/excel/suite_svg.h"
#include "office/libreoffice/units.h"
#include "office/units.h"

namespace libreoffice::excel {

namespace {

constexpr auto crisp = static_cast<std::int32_t>(office::Sharpness::Crisp);
/// A picture with more pixels is made with fewer to the inch: a range of thousands of rows must not
/// exhaust the memory.
constexpr double mostPixels = 60e6;
/// In screen pixels. LibreOffice makes an empty picture instead of one with more than 32,767 pixels
/// on a side.
constexpr double longestSide = 10900;
/// Level 3 takes a quarter of the time off an export and adds a third to the file; the default
/// level is 6.
constexpr sal_Int32 compression = 3;

using FilterData = uno::Sequence<css::beans::PropertyValue>;

/// The page in screen pixels. The exporter scales by whole screen pixels of the page: only a page
/// that is a whole number of them comes out with nothing cut off and no seam.
struct ScreenSize {
    std::int32_t width;
    std::int32_t height;

    explicit ScreenSize(const css::awt::Size& size) {
        const double wide = size.Width * office::pixelsPerInch / hundredthMmPerInch;
        const double high = size.Height * office::pixelsPerInch / hundredthMmPerInch;
        const double pixels = wide * high * crisp * crisp;
        const double scale = std::min({1.0, std::sqrt(mostPixels / std::max(1.0, pixels)),
                                       longestSide / std::max(wide, high)});
        width = std::max(1, static_cast<std::int32_t>(std::lround(wide * scale)));
        height = std::max(1, static_cast<std::int32_t>(std::lround(high * scale)));
    }

    [[nodiscard]] css::awt::Size onPaper() const {
        const auto hundredthMm = [](std::int32_t pixels) {
            return static_cast<std::int32_t>(
                std::lround(pixels * hundredthMmPerInch / office::pixelsPerInch));
        };
        return {hundredthMm(width), hundredthMm(height)};
    }
};

/// The logical size becomes the density that the file carries: its true physical size.
FilterData pngSettings(const ScreenSize& screen, const css::awt::Size& size, bool translucent) {
    return propertyValues({{"PixelWidth", uno::Any(screen.width * crisp)},
                           {"PixelHeight", uno::Any(screen.height * crisp)},
                           {"LogicalWidth", uno::Any(size.Width)},
                           {"LogicalHeight", uno::Any(size.Height)},
                           {"Compression", uno::Any(compression)},
                           {"Translucent", uno::Any(sal_Int32{translucent})}});
}

void writePng(const uno::Reference<css::document::XExporter>& exporter, const FilterData& settings,
              const std::string& path) {
    makeWayFor(path);
    as<css::document::XFilter>(exporter)->filter(
        propertyValues({{"URL", uno::Any(fileUrl(path))},
                        {"MediaType", uno::Any(rtl::OUString("image/png"))},
                        {"FilterData", uno::Any(settings)}}));
    // What the exporter returns says nothing: it is true for a folder that does not exist.
    requirePngFile(path);
}

}  // namespace

css::awt::Size pixelsOf(const css::awt::Size& size, office::Sharpness sharpness) {
    const ScreenSize screen(size);
    const auto dots = static_cast<std::int32_t>(sharpness);
    return {screen.width * dots, screen.height * dots};
}

ChartLook lookOf(const uno::Reference<css::drawing::XShape>& chart) {
    const NamedValues shown(chart, {"Graphic", "Model"});
    ChartLook look = {shown.get<uno::Reference<css::graphic::XGraphic>>("Graphic"),
                      shown.get<uno::Reference<uno::XInterface>>("Model")};
    if (!look.graphic.is()) office::refuse("Chart", "LibreOffice shows nothing of the chart");
    return look;
}

bool isArea(const css::awt::Size& size) {
    // A size of nothing comes back from a file as one of the smallest unit.
    constexpr sal_Int32 tenthOfMm = 10;
    return size.Width >= tenthOfMm && size.Height >= tenthOfMm;
}

css::awt::Size areaOf(const uno::Reference<css::drawing::XShape>& chart) {
    const css::awt::Size size = chart->getSize();
    if (!isArea(size)) office::refuse("Chart", "The chart has no width or no height");
    return size;
}

bool isOpaque(const ChartLook& chart) {
    const auto document = tryAs<css::chart::XChartDocument>(chart.model);
    if (!document.is()) return true;
    using css::drawing::FillStyle;
    const NamedValues area(document->getArea(),
                           {"FillStyle", "FillTransparence", "FillTransparenceGradientName"});
    return area.get("FillStyle", FillStyle::FillStyle_SOLID) != FillStyle::FillStyle_NONE &&
           area.get<sal_Int16>("FillTransparence") == 0 &&
           area.get<rtl::OUString>("FillTransparenceGradientName").isEmpty();
}

/// The drawing that opaque pictures are laid on: one page, one shape as large as the page.
struct SuitePictures::Page {
    uno::Reference<css::frame::XModel> drawing;
    uno::Reference<css::drawing::XDrawPage> page;
    uno::Reference<css::drawing::XShape> shape;
    uno::Reference<css::beans::XPropertySet> shapeProperties;
    uno::Reference<css::document::XExporter> exporter;
    css::awt::Size size;
    bool showsPicture = true;

    void resize(const css::awt::Size& wanted);
    void show(const uno::Reference<css::graphic::XGraphic>& graphic);
};

void SuitePictures::Page::resize(const css::awt::Size& wanted) {
    if (wanted.Width == size.Width && wanted.Height == size.Height) return;
    NamedValues({{"Height", uno::Any(wanted.Height)}, {"Width", uno::Any(wanted.Width)}})
        .applyTo(page);
    shape->setSize(wanted);
    size = wanted;
}

void SuitePictures::Page::show(const uno::Reference<css::graphic::XGraphic>& graphic) {
    if (graphic.is()) shapeProperties->setPropertyValue("Graphic", uno::Any(graphic));
    if (graphic.is() != showsPicture)
        shapeProperties->setPropertyValue("Visible", uno::Any(graphic.is()));
    showsPicture = graphic.is();
}

SuitePictures::SuitePictures(std::shared_ptr<Connection> connection)
    : connection_(std::move(connection)) {}

SuitePictures::~SuitePictures() {
    if (!page_) return;
    asFarAsPossible([&] { as<css::util::XCloseable>(page_->drawing)->close(true); });
}

SuitePictures::Page& SuitePictures::page() {
    if (page_) return *page_;
    auto made = std::make_unique<Page>();
    made->drawing =
        as<css::frame::XModel>(connection_->create("com.sun.star.drawing.DrawingDocument"));
    as<css::frame::XLoadable>(made->drawing)->initNew();
    const uno::Reference<css::drawing::XDrawPage> page(
        as<css::drawing::XDrawPagesSupplier>(made->drawing)->getDrawPages()->getByIndex(0),
        uno::UNO_QUERY_THROW);
    for (const char* border : {"BorderLeft", "BorderRight", "BorderTop", "BorderBottom"}) {
        setProperty(page, border, sal_Int32{0});
    }
    made->shape =
        as<css::drawing::XShape>(as<css::lang::XMultiServiceFactory>(made->drawing)
                                     ->createInstance("com.sun.star.drawing.GraphicObjectShape"));
    page->add(made->shape);
    made->shape->setPosition(css::awt::Point(0, 0));
    made->shapeProperties = as<css::beans::XPropertySet>(made->shape);
    made->page = page;
    made->exporter = as<css::document::XExporter>(
        connection_->create("com.sun.star.drawing.GraphicExportFilter"));
    made->exporter->setSourceDocument(as<css::lang::XComponent>(page));
    page_ = std::move(made);
    return *page_;
}

void SuitePictures::layOnPage(const uno::Reference<css::graphic::XGraphic>& graphic,
                              const css::awt::Size& size) {
    page().show(graphic);
    page().resize(size);
}

void SuitePictures::writePage(const uno::Reference<css::graphic::XGraphic>& graphic,
                              const css::awt::Size& size, const std::string& path) {
    const ScreenSize screen(size);
    layOnPage(graphic, screen.onPaper());
    writePng(page().exporter, pngSettings(screen, size, false), path);
}

const uno::Reference<css::document::XExporter>& SuitePictures::exporterOf(
    const uno::Reference<css::drawing::XShape>& shape) {
    if (!shapeExporter_.is()) {
        shapeExporter_ = as<css::document::XExporter>(
            connection_->create("com.sun.star.drawing.GraphicExportFilter"));
    }
    shapeExporter_->setSourceDocument(as<css::lang::XComponent>(shape));
    return shapeExporter_;
}

void SuitePictures::writeChart(const uno::Reference<css::drawing::XShape>& chart,
                               const std::string& path) {
    const css::awt::Size size = areaOf(chart);
    const ChartLook look = lookOf(chart);
    if (isOpaque(look)) {
        writePage(look.graphic, size, path);
    } else {
        writePng(exporterOf(chart), pngSettings(ScreenSize(size), size, true), path);
    }
}

void SuitePictures::writeMetafile(const uno::Sequence<sal_Int8>& metafile,
                                  const css::awt::Size& size, const std::string& path) {
    writePage(graphicOf(metafile), size, path);
}

uno::Reference<css::graphic::XGraphic> SuitePictures::graphicOf(
    const uno::Sequence<sal_Int8>& metafile) {
    if (!metafile.hasElements()) return {};
    const auto stream =
        connection_->create("com.sun.star.io.SequenceInputStream", {uno::Any(metafile)});
    return connection_->graphics()->queryGraphic(
        propertyValues({{"InputStream", uno::Any(stream)}}));
}

uno::Sequence<sal_Int8> SuitePictures::metafileOf(
    const uno::Reference<css::graphic::XGraphic>& graphic) {
    // Not by an exporter: it scales all that is drawn, labels that reach out of the chart too, to
    // the size of the shape.
    const std::string bytes = writtenBy([&](const std::string& file) {
        connection_->graphics()->storeGraphic(
            graphic, propertyValues({{"URL", uno::Any(fileUrl(file))},
                                     {"MimeType", uno::Any(rtl::OUString("image/x-svm"))}}));
    });
    return {reinterpret_cast<const sal_Int8*>(bytes.data()), static_cast<sal_Int32>(bytes.size())};
}

std::string SuitePictures::svgOfChart(const uno::Reference<css::drawing::XShape>& chart) {
    // Not the chart's own vectors: the exporter scales all that is drawn, labels that reach out
    // of the chart too, to the size of the shape.
    return svgOfPage(lookOf(chart).graphic, areaOf(chart));
}

std::string SuitePictures::svgOfMetafile(const uno::Sequence<sal_Int8>& metafile,
                                         const css::awt::Size& size) {
    return svgOfPage(graphicOf(metafile), size);
}

std::string SuitePictures::svgOfPage(const uno::Reference<css::graphic::XGraphic>& graphic,
                                     const css::awt::Size& size) {
    const css::awt::Size paper = ScreenSize(size).onPaper();
    layOnPage(graphic, paper);
    constexpr double hundredthsPerMm = 100;
    return mended({.text = written(page().exporter, "image/svg+xml"),
                   .pageWidth = paper.Width,
                   .pageHeight = paper.Height,
                   .widthMm = size.Width / hundredthsPerMm,
                   .heightMm = size.Height / hundredthsPerMm,
                   .hairline = hundredthMmPerInch / office::pixelsPerInch / crisp});
}

std::string SuitePictures::written(const uno::Reference<css::document::XExporter>& exporter,
                                   const char* mediaType) {
    return writtenBy([&](const std::string& file) {
        as<css::document::XFilter>(exporter)->filter(
            propertyValues({{"URL", uno::Any(fileUrl(file))},
                            {"MediaType", uno::Any(rtl::OUString::createFromAscii(mediaType))}}));
    });
}

std::string SuitePictures::writtenBy(const std::function<void(const std::string& file)>& write) {
    // A stream of the suite's would take three calls more.
    if (!folder_) folder_ = std::make_unique<PrivateFolder>();
    const std::string file = folder_->file("vectors");
    // What the exporter returns says nothing, and the last picture must not stand in for this one.
    std::error_code isNotThere;
    std::filesystem::remove(file, isNotThere);
    write(file);
    return office::bytesOf(file).value_or("");
}

std::string SuitePictures::emfOfChart(const uno::Reference<css::drawing::XShape>& chart) {
    // Not the chart's picture on a page, where an EMF loses lines and what shines through.
    return written(exporterOf(chart), "image/x-emf");
}

std::string SuitePictures::emfOfMetafile(const uno::Sequence<sal_Int8>& metafile,
                                         const css::awt::Size& size) {
    layOnPage(graphicOf(metafile), size);
    constexpr sal_Int32 white = 0xFFFFFF;
    const auto& shape = page().shapeProperties;
    shape->setPropertyValue("FillColor", uno::Any(white));
    shape->setPropertyValue("FillStyle", uno::Any(css::drawing::FillStyle_SOLID));
    // Charts may let things shine through.
    const auto empty = atEnd(
        [&] { shape->setPropertyValue("FillStyle", uno::Any(css::drawing::FillStyle_NONE)); });
    return written(exporterOf(page().shape), "image/x-emf");
}

}  // namespace libreoffice::excel
