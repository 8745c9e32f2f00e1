#pragma once

#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>

#include <string>
#include <utility>

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

/// Puts a table on top of a slide's other shapes; `scale` is that of its fonts, widths and heights.
/// LibreOffice takes tables from the clipboard only: what the user copied in LibreOffice is put
/// back, what comes from elsewhere is lost. `office::Failure` 1004 if it can't be made; then
/// nothing is put there.
[[nodiscard]] ShapeRef addTable(ImpressSlide& slide, const office::TableLook& table, double scale);

/// Puts an object on top of a slide's other shapes that leads to a workbook's file, and shows the
/// picture until somebody opens or updates it; the file isn't loaded.
[[nodiscard]] ShapeRef addLink(ImpressSlide& slide, const std::string& file,
                               const uno::Reference<css::graphic::XGraphic>& picture,
                               const css::awt::Size& size);

}  // namespace libreoffice::powerpoint
