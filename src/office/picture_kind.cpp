#include "office/picture_kind.h"

#include "office/text.h"

namespace office {

std::optional<PictureKind> pictureKindCalled(std::string_view name) {
    for (const PictureKind kind : {PictureKind::Png, PictureKind::Svg, PictureKind::Emf}) {
        if (lowerCase(name) == std::string_view(endingOf(kind)).substr(1)) return kind;
    }
    return std::nullopt;
}

const char* endingOf(PictureKind kind) {
    switch (kind) {
        case PictureKind::Svg:
            return ".svg";
        case PictureKind::Emf:
            return ".emf";
        default:
            return ".png";
    }
}

}  // namespace office
