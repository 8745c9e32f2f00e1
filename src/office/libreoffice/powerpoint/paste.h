#pragma once

#include <com/sun/star/drawing/XShape.hpp>

#include <utility>

#include "office/libreoffice/excel/copied.h"
#include "office/libreoffice/powerpoint/impress_slide.h"
#include "office/table_look.h"

namespace libreoffice::powerpoint {

using ShapeRef = uno::Reference<css::drawing::XShape>;

/// A shape on top of a slide's other shapes, one for an embedded object by default. It goes with
/// this object unless it is taken over.
class NewShape {
public:
    explicit NewShape(ImpressSlide& slide, const char* service = "com.sun.star.drawing.OLE2Shape");
    NewShape(const NewShape&) = delete;
    NewShape& operator=(const NewShape&) = delete;
    ~NewShape();

    [[nodiscard]] const ShapeRef& shape() const { return shape_; }
    [[nodiscard]] ShapeRef take() { return std::exchange(shape_, nullptr); }

private:
    uno::Reference<css::drawing::XDrawPage> page_;
    ShapeRef shape_;
};

// What `ImpressSlide::paste` makes, each on top of the slide's other shapes, in the size given.
// `office::Failure` 1004 if it can't be made; then nothing is put there.

/// A chart with data of its own. Neither the clipboard nor a window is touched.
[[nodiscard]] ShapeRef addChart(ImpressSlide& slide, const excel::CopiedChart& chart,
                                const css::awt::Size& size);

/// An object that opens as a workbook of the sheet that the copied thing stands on, at the place
/// where it stands; until then it shows the copied thing's picture. Other sheets come along as far
/// as charts there draw on them, and are hidden.
[[nodiscard]] ShapeRef addWorkbook(ImpressSlide& slide, const excel::CopiedHere& copied,
                                   const css::awt::Size& size);

/// An object bound to the workbook's file, with the copied thing's picture.
[[nodiscard]] ShapeRef addLink(ImpressSlide& slide, const excel::CopiedHere& copied,
                               const css::awt::Size& size);

/// A table; `scale` is that of its fonts, widths and heights. LibreOffice takes tables from the
/// clipboard only: what the user copied in LibreOffice is put back, what comes from elsewhere is
/// lost.
[[nodiscard]] ShapeRef addTable(ImpressSlide& slide, const office::TableLook& table, double scale);

}  // namespace libreoffice::powerpoint
