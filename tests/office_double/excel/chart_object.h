#pragma once

#include "office_double/box.h"
#include "office_double/double_object.h"

namespace office_double {

class Chart;
class Worksheet;

/// A chart that lies on a worksheet.
class ChartObject : public Doubled<ChartObject> {
public:
    ChartObject(Owner sheet, std::string name, const Box& box)
        : Doubled(sheet),
          name_(std::move(name)),
          box_(box) {}

    static const office::MemberTable<ChartObject>& members();

    [[nodiscard]] std::string name() const override { return name_; }
    [[nodiscard]] const Box& box() const { return box_; }
    [[nodiscard]] Worksheet& sheet() const;
    [[nodiscard]] Chart& chart();

private:
    Value readChart();
    Value readIndex();
    Value topLeftCell();
    Value bottomRightCell();
    Value activate(const CallArguments& arguments);
    Value copyPicture(const CallArguments& arguments);
    Value deleteObject(const CallArguments& arguments);

    std::string name_;
    Box box_;
    std::shared_ptr<Chart> chart_;
};

}  // namespace office_double
