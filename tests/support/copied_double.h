#pragma once

#include <utility>

#include "office/copied.h"
#include "support/png_file.h"

namespace support {

/// Something that was copied, which looks as a picture of its size, or as cells made by hand.
struct CopiedDouble : office::Copied {
    CopiedDouble(const office::CopySource& source, double width, double height,
                 office::TableLook cells = {})
        : Copied(source, width, height),
          look(std::move(cells)) {}
    explicit CopiedDouble(const office::TableLook& cells)
        : CopiedDouble({office::CopySource::Kind::Cells, {}, {}, {}, {}}, cells.widthPt(),
                       cells.heightPt(), cells) {}
    [[nodiscard]] office::Picture picture(office::Sharpness) const override {
        const auto bytes = pngPictureOfPoints(widthPt(), heightPt());
        return office::finishedPicture(widthPt(), heightPt(), {bytes.begin(), bytes.end()});
    }
    [[nodiscard]] office::TableLook table() const override { return look; }

    office::TableLook look;
};

}  // namespace support
