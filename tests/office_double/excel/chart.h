#pragma once

#include "office_double/excel/sheet.h"

namespace office_double {

class ChartObject;

/// A chart: a sheet of its own, or the inside of a `ChartObject`. Size in points.
class Chart : public Doubled<Chart, Sheet> {
public:
    using Doubled::Doubled;

    static const office::MemberTable<Chart>& members();

    Chart& title(std::string text);
    Chart& size(double width, double height);

    [[nodiscard]] Workbook& book() const override;

private:
    [[nodiscard]] ChartObject* holder() const;
    [[nodiscard]] CopiedPicture extent() const;

    Value readParent();
    Value readChartArea();
    Value readTitle();
    Value exportTo(const CallArguments& arguments);
    Value copyPicture(const CallArguments& arguments);
    Value paste(const CallArguments& arguments);

    bool hasTitle_ = false;
    std::string title_;
    double width_ = 360;
    double height_ = 240;
};

}  // namespace office_double
