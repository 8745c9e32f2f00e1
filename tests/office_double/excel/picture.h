#pragma once

#include <stdexcept>
#include <string>

#include "office/model/excel/objects.h"
#include "office_double/suite_state.h"
#include "support/png_file.h"

namespace office_double {

namespace excel = office::model::excel;

/// A picture in memory has a size and nothing else, in points.
struct SizedPicture : excel::Picture {
    explicit SizedPicture(const CopiedPicture& s) : size(s) {}
    CopiedPicture size;
};

inline void writePng(const CopiedPicture& size, const std::string& path) {
    try {
        support::writeBytes(path, support::pngPictureOfPoints(size.width, size.height));
    } catch (const office::Failure&) {
        throw;
    } catch (const std::runtime_error& error) {
        excel::refuse("Chart.Export", error.what());
    }
}

}  // namespace office_double
