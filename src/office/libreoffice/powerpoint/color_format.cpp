#include "office/libreoffice/powerpoint/color_format.h"

#include <utility>

namespace libreoffice::powerpoint {

ColorFormat::ColorFormat(DeskPtr desk, std::shared_ptr<Document> document, Read read, Write write)
    : UnoObject(std::move(desk), std::move(document)),
      read_(std::move(read)),
      write_(std::move(write)) {}

const office::MemberTable<ColorFormat>& ColorFormat::members() {
    static const auto table = office::MemberTable<ColorFormat>("ColorFormat")
                                  .property("RGB", &ColorFormat::rgb, &ColorFormat::setRgb);
    return table;
}

office::Value ColorFormat::rgb() {
    return read_();
}

void ColorFormat::setRgb(const office::Value& colour) {
    write_(colour.toLong());
}

}  // namespace libreoffice::powerpoint
