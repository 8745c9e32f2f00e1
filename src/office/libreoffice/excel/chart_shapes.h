#pragma once

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/drawing/XDrawPage.hpp>
#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/table/XTableChartsSupplier.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/libreoffice/excel/last_look.h"
#include "office/libreoffice/uno_values.h"
#include "office/model/excel/sheet.h"

namespace libreoffice::excel {

class CalcDocument;

/// All that lies on a sheet.
[[nodiscard]] uno::Reference<css::drawing::XDrawPage> drawPageOf(
    const uno::Reference<css::sheet::XSpreadsheet>& sheet);

/// Whether a shape on a sheet shows a chart.
[[nodiscard]] bool showsChart(const uno::Reference<css::drawing::XShape>& shape);

/// Where a chart is to be found: a document, and the sheet's name there.
struct SheetOfChart {
    uno::Reference<css::frame::XModel> document;
    std::string sheet;
};

/// The shape that shows a chart on a sheet. A chart made in LibreOffice may have no name; then the
/// key under which the document stores it stands for one. Of several with one name each is called
/// by a name of its own.
class ChartShape : public office::model::excel::SheetChart {
public:
    ChartShape(CalcDocument& book, uno::Reference<css::drawing::XShape> shape,
               uno::Reference<css::beans::XMultiPropertySet> properties, std::string name,
               bool hasName);

    [[nodiscard]] const uno::Reference<css::drawing::XShape>& shape() const { return shape_; }
    /// As last seen.
    [[nodiscard]] const std::string& knownName() const { return name_; }
    [[nodiscard]] bool hasArea() const;
    /// Tells it from its namesakes.
    void callItself(std::string distinct) { name_ = std::move(distinct); }
    /// The shape is that of another document and lasts as long as its owner: what is copied of it
    /// keeps that one.
    void belongTo(std::weak_ptr<const void> owner, SheetOfChart home) {
        owner_ = std::move(owner);
        home_ = std::move(home);
    }

    [[nodiscard]] bool isGone() const override { return false; }
    std::string name() override;
    office::model::excel::Box box() override;
    office::CopiedPtr copy(office::CopySource source) override;
    void writePicture(const std::string& path, office::PictureKind kind) override;
    void paste(const office::CopiedPtr& picture) override;
    /// LibreOffice selects the frame; the chart is not opened for editing, which would take the
    /// keyboard from the user.
    void select() override;
    void remove() override;

private:
    CalcDocument& book_;
    uno::Reference<css::drawing::XShape> shape_;
    uno::Reference<css::beans::XMultiPropertySet> properties_;
    /// The name that the suite knows it by, as it was at first.
    std::string ownName_;
    std::string name_;
    bool hasName_;
    std::weak_ptr<const void> owner_;
    SheetOfChart home_;
};

using ChartShapePtr = std::shared_ptr<ChartShape>;

/// The charts of one sheet, those inside groups too, in the order in which they lie upon each
/// other.
///
/// Each shape is fetched once and held as long as it exists: LibreOffice makes a new object for a
/// shape that nobody holds, and such a fresh one gives wrong values now and then (an empty name, a
/// size of 100).
class ChartShapes {
public:
    ChartShapes(CalcDocument& book, uno::Reference<css::sheet::XSpreadsheet> sheet);

    /// All charts as of now.
    [[nodiscard]] const std::vector<ChartShapePtr>& all();
    /// Null if there is none of that name.
    [[nodiscard]] ChartShapePtr find(std::string_view name);

private:
    void refresh(const uno::Sequence<rtl::OUString>& keys);
    void collect(const uno::Reference<css::container::XIndexAccess>& shapes,
                 std::vector<ChartShapePtr>& into);
    [[nodiscard]] ChartShapePtr held(const uno::Reference<css::drawing::XShape>& shape) const;

    CalcDocument& book_;
    uno::Reference<css::sheet::XSpreadsheet> sheet_;
    uno::Reference<css::table::XTableChartsSupplier> supplier_;
    uno::Sequence<rtl::OUString> seenKeys_;
    LastLook look_;
    std::vector<ChartShapePtr> charts_;
};

}  // namespace libreoffice::excel
