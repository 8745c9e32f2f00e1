#pragma once

#include <cstdint>
#include <functional>

#include "office/libreoffice/guard.h"

namespace libreoffice::powerpoint {

/// The object models write a colour as 0xBBGGRR, LibreOffice as 0xRRGGBB: each way the same swap.
[[nodiscard]] constexpr std::int32_t swapRedAndBlue(std::int32_t colour) {
    return ((colour & 0xFF) << 16) | (colour & 0xFF00) | ((colour >> 16) & 0xFF);
}

/// A colour of something, by two functions that take and give 0xBBGGRR.
class ColorFormat : public UnoObject<ColorFormat> {
public:
    using Read = std::function<std::int32_t()>;
    using Write = std::function<void(std::int32_t)>;

    ColorFormat(DeskPtr desk, std::shared_ptr<Document> document, Read read, Write write);

    static const office::MemberTable<ColorFormat>& members();

private:
    office::Value rgb();
    void setRgb(const office::Value& colour);

    Read read_;
    Write write_;
};

}  // namespace libreoffice::powerpoint
