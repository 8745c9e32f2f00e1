#pragma once

#include <cstdint>
#include <string>

namespace office {

/// In points.
struct Size {
    double width = 0;
    double height = 0;
};

/// What a text is written in.
struct Font {
    std::string name;
    double sizePt = 0;
    /// 0xBBGGRR, as the object models write it.
    std::int32_t colour = 0;
};

}  // namespace office
