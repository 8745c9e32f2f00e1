#include "office/libreoffice/excel/chart_export.h"

#include <com/sun/star/chart/XChartDocument.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <fmt/format.h>

#include "office/failure.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

uno::Reference<css::chart::XChartDocument> modelOf(
    const uno::Reference<css::drawing::XShape>& chart) {
    return as<css::chart::XChartDocument>(
        property<uno::Reference<css::frame::XModel>>(chart, "Model"));
}

}  // namespace

PictureMaker& pictureMaker(Desk& desk) {
    if (!desk.pictureMaker)
        desk.pictureMaker = std::make_shared<PictureMaker>(desk.connectionPtr());
    return *desk.pictureMaker;
}

std::string exportPath(const office::CallArguments& arguments) {
    const std::string format = arguments.at(1, "PNG").toText();
    if (!office::sameIgnoringCase(format, "PNG")) {
        throw office::Failure(
            office::FailureNumber::InvalidProcedureCall, arguments.source(),
            fmt::format("A chart can't be exported as \"{}\", only as PNG", format));
    }
    return arguments.at(0).toText();
}

CopiedPicture takePictureOfChart(Desk& desk, const uno::Reference<css::drawing::XShape>& chart) {
    const css::awt::Size size = chart->getSize();
    return {pictureMaker(desk).metafileOf(chart), size.Width, size.Height};
}

bool chartHasTitle(const uno::Reference<css::drawing::XShape>& chart) {
    return property<bool>(modelOf(chart), "HasMainTitle");
}

std::string chartTitle(const uno::Reference<css::drawing::XShape>& chart) {
    const auto model = modelOf(chart);
    if (!property<bool>(model, "HasMainTitle")) return {};
    return fromUno(property<rtl::OUString>(model->getTitle(), "String"));
}

}  // namespace libreoffice::excel
