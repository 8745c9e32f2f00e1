#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/table/XTableChartsSupplier.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::excel {

/// The shape that shows a chart on a sheet.
struct ChartShape {
    uno::Reference<css::drawing::XShape> shape;
    uno::Reference<css::beans::XPropertySet> properties;
    uno::Reference<css::container::XNamed> named;
    /// As last seen. A chart made in LibreOffice may have no name; then the key under which the
    /// document stores it.
    std::string name;
    bool hasName = true;

    /// The name as it is now.
    [[nodiscard]] std::string readName() const;
};

using ChartShapePtr = std::shared_ptr<const ChartShape>;

/// The charts of one sheet, those inside groups too, in the order in which they lie upon each
/// other.
///
/// Each shape is fetched once and held as long as it exists: LibreOffice makes a new object for a
/// shape that nobody holds, and such a fresh one gives wrong values now and then (an empty name, a
/// size of 100).
class ChartShapes {
public:
    explicit ChartShapes(uno::Reference<css::sheet::XSpreadsheet> sheet);

    /// All charts as of now.
    [[nodiscard]] const std::vector<ChartShapePtr>& all();
    /// Null if there is none of that name.
    [[nodiscard]] ChartShapePtr find(std::string_view name);

private:
    void refresh(const uno::Sequence<rtl::OUString>& keys);
    void collect(const uno::Reference<css::container::XIndexAccess>& shapes,
                 std::vector<ChartShapePtr>& into);
    [[nodiscard]] ChartShapePtr held(const uno::Reference<css::drawing::XShape>& shape) const;

    uno::Reference<css::sheet::XSpreadsheet> sheet_;
    uno::Reference<css::table::XTableChartsSupplier> supplier_;
    uno::Sequence<rtl::OUString> seenKeys_;
    std::vector<ChartShapePtr> charts_;
};

}  // namespace libreoffice::excel
