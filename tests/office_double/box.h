#pragma once

namespace office_double {

/// A place on a sheet or slide, in points.
struct Box {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

}  // namespace office_double
