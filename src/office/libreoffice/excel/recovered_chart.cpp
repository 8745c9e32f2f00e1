#include "office/libreoffice/excel/recovered_chart.h"

#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <fmt/format.h>
#include <pugixml.hpp>

#include <filesystem>
#include <utility>
#include <vector>

#include "office/failure.h"
#include "office/libreoffice/at_end.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/changed_copy.h"
#include "office/package/package.h"
#include "office/package/workbook/chart_sheet_place.h"

namespace libreoffice::excel {

namespace {

[[noreturn]] void fail(const SheetRecord& sheet, std::string_view why) {
    office::refuse("Chart", fmt::format("The chart of the chart sheet \"{}\" could not be read: {}",
                                        sheet.knownName(), why));
}

/// Writes the workbook anew, with the chart where LibreOffice sees it.
void writeMended(const SheetRecord& sheet, const std::string& original, const std::string& copy) {
    try {
        if (!writeChangedCopy(original, copy, sheet.part, "drawing", office::package::placeOnPage))
            fail(sheet, "it has none");
    } catch (const office::package::PackageError&) {
        fail(sheet, "its file is not at hand");
    }
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
    if (sheet.part.empty()) fail(sheet, "its file is not at hand");
    const std::string original = pathOfUrl(sheet.book().url());
    const std::string copy =
        folder_.file(std::filesystem::path(original).filename().string().c_str());
    writeMended(sheet, original, copy);
    // Only looked at: nothing of it has to be made changeable.
    copy_ = std::make_unique<OpenCopy>(sheet.book().desk().load(fileUrl(copy), true, {}, true));
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
