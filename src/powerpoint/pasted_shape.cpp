#include "powerpoint/pasted_shape.h"

#include "catalogue/row_copies.h"
#include "office/failure_patterns.h"

namespace powerpoint {

using catalogue::ExportItem;
using office::Object;

void describeShape(const Object& shape, const ExportItem& row) {
    office::ContinueOnFailure().attempt(
        [&] { shape.put("AlternativeText", catalogue::DescriptionOf(row)); });
}

void describeLastShape(const Object& slide, const ExportItem& row) {
    office::ContinueOnFailure().attempt([&] {
        const Object shapes = slide.get("Shapes").toObject();
        describeShape(shapes.get("Item", shapes.get("Count").toLong()).toObject(), row);
    });
}

}  // namespace powerpoint
