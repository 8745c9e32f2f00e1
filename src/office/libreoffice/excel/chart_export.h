#pragma once

#include <string>

#include "office/call_arguments.h"
#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/picture_maker.h"

namespace libreoffice::excel {

/// The session's maker of pictures; made when it is first asked for.
[[nodiscard]] PictureMaker& pictureMaker(Desk& desk);

/// The file that an `Export` asks for. `office::Failure` 5 for a format other than PNG.
[[nodiscard]] std::string exportPath(const office::CallArguments& arguments);

/// A chart as a copied picture.
[[nodiscard]] CopiedPicture takePictureOfChart(Desk& desk,
                                               const uno::Reference<css::drawing::XShape>& chart);

[[nodiscard]] bool chartHasTitle(const uno::Reference<css::drawing::XShape>& chart);
/// Empty without a title.
[[nodiscard]] std::string chartTitle(const uno::Reference<css::drawing::XShape>& chart);

}  // namespace libreoffice::excel
