#include "apps/murvane_export/option_words.h"

namespace unattended {

const std::map<std::string, session::PictureLook>& looksByName() {
    using session::PictureLook;
    static const std::map<std::string, PictureLook> looks = {
        {"none", PictureLook::None},
        {"shadow-around", PictureLook::ShadowAllAround},
        {"shadow", PictureLook::Shadow},
        {"rounded", PictureLook::RoundedCorners},
        {"reflection", PictureLook::Reflection},
        {"reflection-rounded", PictureLook::ReflectionRounded},
    };
    return looks;
}

const std::map<std::string, catalogue::Destination>& destinationsByName() {
    using catalogue::Destination;
    static const std::map<std::string, Destination> destinations = {
        {"slides", Destination::PowerPoint}, {"word", Destination::Word},
        {"pdf", Destination::Pdf},           {"html", Destination::Html},
        {"images", Destination::ImageFiles},
    };
    return destinations;
}

const std::map<std::string, session::ImageFormat>& imageFormatsByName() {
    using session::ImageFormat;
    static const std::map<std::string, ImageFormat> formats = {
        {"png", ImageFormat::Png}, {"gif", ImageFormat::Gif},   {"jpeg", ImageFormat::Jpeg},
        {"bmp", ImageFormat::Bmp}, {"tiff", ImageFormat::Tiff},
    };
    return formats;
}

const std::map<std::string, catalogue::ExportFormat>& formatsByName() {
    using catalogue::ExportFormat;
    static const std::map<std::string, ExportFormat> formats = {
        {"pictures", ExportFormat::Pictures},
        {"editable", ExportFormat::Editable},
        {"embedded", ExportFormat::Embedded},
        {"linked", ExportFormat::Linked},
    };
    return formats;
}

}  // namespace unattended
