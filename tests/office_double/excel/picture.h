#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "office/model/excel/objects.h"
#include "office_double/suite_state.h"
#include "support/png_file.h"
#include "support/vector_file.h"

namespace office_double {

namespace excel = office::model::excel;

/// What is copied in memory has a size, in points, and the texts of its cells.
class CopiedThing : public office::Copied {
public:
    CopiedThing(office::CopySource source, const excel::Box& box, office::TableLook table = {})
        : Copied(std::move(source), box.width, box.height),
          table_(std::move(table)) {}

    [[nodiscard]] office::Picture picture(office::Sharpness) const override {
        const auto bytes = support::pngPictureOfPoints(widthPt(), heightPt());
        return office::finishedPicture(widthPt(), heightPt(), {bytes.begin(), bytes.end()});
    }
    [[nodiscard]] office::TableLook table() const override {
        if (table_.cells.empty()) office::refuse("Range.Copy", "These are no cells");
        return table_;
    }

private:
    office::TableLook table_;
};

inline void writePictureOf(const excel::Box& box, const std::string& path,
                           office::PictureKind kind) {
    try {
        support::writeBytes(path, support::pictureOfPoints(kind, box.width, box.height));
    } catch (const office::Failure&) {
        throw;
    } catch (const std::runtime_error& error) {
        office::refuse("Chart.Export", error.what());
    }
}

}  // namespace office_double
