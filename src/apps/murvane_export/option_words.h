#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "catalogue/export_choices.h"
#include "session/host.h"
#include "session/picture_look.h"

namespace unattended {

/// The words that options take, and what they mean.
[[nodiscard]] const std::map<std::string, catalogue::Destination>& destinationsByName();
[[nodiscard]] const std::map<std::string, catalogue::ExportFormat>& formatsByName();
[[nodiscard]] const std::map<std::string, session::ImageFormat>& imageFormatsByName();
/// Looks of pictures, as the slide dialog numbers them.
[[nodiscard]] const std::map<std::string, session::PictureLook>& looksByName();

}  // namespace unattended
