#pragma once

#include <cstdint>
#include <string>

namespace libreoffice::excel {

/// A page as the suite has written it, and how large it is.
struct SuiteSvg {
    std::string text;
    /// In the units of the drawing, hundredths of a millimetre.
    std::int32_t pageWidth = 0;
    std::int32_t pageHeight = 0;
    /// What the picture measures, in millimetres.
    double widthMm = 0;
    double heightMm = 0;
    /// In units of the drawing: what the suite draws as thin as it can.
    double hairline = 0;
};

/// The page as the suite itself would draw it: with its true size, and with what the exporter gets
/// wrong put right. Empty if it is no SVG.
[[nodiscard]] std::string mended(const SuiteSvg& page);

}  // namespace libreoffice::excel
