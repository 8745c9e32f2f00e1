#include "office/libreoffice/objects/copied_object.h"

#include <com/sun/star/awt/Point.hpp>
#include <com/sun/star/awt/Rectangle.hpp>
#include <com/sun/star/document/XStorageBasedDocument.hpp>
#include <fmt/format.h>

#include "office/failure.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/objects/drawn_chart.h"
#include "office/libreoffice/objects/sheet_copy.h"

namespace libreoffice::objects {

namespace {

/// A workbook of one empty sheet.
constexpr std::string_view emptyBook =
    R"(<?xml version="1.0" encoding="UTF-8"?>)"
    R"(<office:document-content xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0")"
    R"( xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" office:version="1.3">)"
    R"(<office:body><office:spreadsheet><table:table table:name="Murvane"/></office:spreadsheet>)"
    R"(</office:body></office:document-content>)";

/// What of the first sheet is seen. A workbook takes it from its settings only while it is loaded.
std::string settingsShowing(const css::awt::Rectangle& area) {
    const auto item = [](const char* name, sal_Int32 value) {
        return fmt::format(R"(<config:config-item config:name="VisibleArea{}" config:type="int">{})"
                           R"(</config:config-item>)",
                           name, value);
    };
    return fmt::format(
        R"(<?xml version="1.0" encoding="UTF-8"?>)"
        R"(<office:document-settings xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0")"
        R"( xmlns:config="urn:oasis:names:tc:opendocument:xmlns:config:1.0" office:version="1.3">)"
        R"(<office:settings><config:config-item-set config:name="ooo:view-settings">)"
        R"({}{}{}{}</config:config-item-set></office:settings></office:document-settings>)",
        item("Left", area.X), item("Top", area.Y), item("Width", area.Width),
        item("Height", area.Height));
}

/// What something that was copied takes of its sheet.
css::awt::Rectangle areaOf(const excel::CopiedHere& copied) {
    css::awt::Point corner;
    css::awt::Size size;
    if (const auto* cells = dynamic_cast<const excel::CopiedCells*>(&copied)) {
        corner = property<css::awt::Point>(cells->cells(), "Position");
        size = property<css::awt::Size>(cells->cells(), "Size");
    } else {
        const auto& chart = dynamic_cast<const excel::CopiedChart&>(copied);
        corner = chart.shape()->getPosition();
        size = chart.shape()->getSize();
    }
    return {corner.X, corner.Y, size.Width, size.Height};
}

}  // namespace

const excel::CopiedHere& copiedHere(const office::Copied& copied, const char* member) {
    const auto* here = dynamic_cast<const excel::CopiedHere*>(&copied);
    if (here == nullptr || copied.source().kind == office::CopySource::Kind::Picture)
        office::refuse(member, "It can't be pasted in this form");
    return *here;
}

void storeChart(NewObject& object, const excel::CopiedChart& chart) {
    const DrawnChart drawn(
        property<uno::Reference<css::chart2::XChartDocument>>(chart.shape(), "Model"));
    as<css::document::XStorageBasedDocument>(drawn.model())
        ->storeToStorage(object.folder(),
                         propertyValues({{"FilterName", uno::Any(rtl::OUString("chart8"))}}));
    object.close();
}

void storeEmptyWorkbook(NewObject& object, const excel::CopiedHere& copied) {
    object.setMediaType("application/vnd.oasis.opendocument.spreadsheet");
    object.writeXml("content.xml", emptyBook);
    object.writeXml("settings.xml", settingsShowing(areaOf(copied)));
    object.close();
}

/// The whole workbook would come along by way of a file, which takes longer by as much as there is
/// in it, and would hand on sheets that nobody has chosen.
void fillWorkbook(const Connection& connection, const excel::CopiedHere& copied,
                  const uno::Reference<css::frame::XModel>& workbook) {
    if (const auto* cells = dynamic_cast<const excel::CopiedCells*>(&copied)) {
        copySheet(connection, cells->sheet().book().model(), copied.source().sheet, workbook);
        return;
    }
    const auto& chart = dynamic_cast<const excel::CopiedChart&>(copied);
    // The workbook may have been closed since.
    static_cast<void>(chart.book());
    copySheet(connection, chart.home().document, chart.home().sheet, workbook);
}

}  // namespace libreoffice::objects
