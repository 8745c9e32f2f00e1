#pragma once

#include <memory>
#include <optional>
#include <string>

#include "office/copied.h"
#include "office/failure.h"
#include "office/package/presentation/file_decks.h"
#include "support/call_log.h"
#include "support/failure_plan.h"
#include "support/png_file.h"

namespace office_double {

using office::Failure;
using office::FailureNumber;
using office::Object;
using office::Value;

/// Draws a PNG of the right size in the stead of vectors; no file is ever on its way.
class DrawnAtOnce : public office::PictureFiles {
public:
    void complete(const std::string&) override {}
    std::optional<office::Picture> take(const std::string&) override { return std::nullopt; }
    office::Picture draw(const office::VectorFile& svg) override {
        const auto png = support::pngPictureOfPoints(svg.widthPt, svg.heightPt);
        return office::finishedPicture(svg.widthPt, svg.heightPt, {png.begin(), png.end()});
    }
};

/// The size of a text: characters half as wide as they are high, in one line.
inline office::Size measureOfDouble(const std::string& words, const office::Font& font,
                                    std::optional<double>) {
    return {static_cast<double>(words.size()) * font.sizePt / 2, font.sizePt};
}

/// What all objects of one suite share. Each member that is used is recorded, and fails if it is
/// planned to.
struct SuiteState : office::package::PackageGuard {
    office::Value run(const office::model::MemberUse& use,
                      const std::function<office::Value()>& statement) override;

    support::CallLog log;
    support::FailurePlan failures;
    office::ClipboardPtr clipboard = std::make_shared<office::Clipboard>();
};

}  // namespace office_double
