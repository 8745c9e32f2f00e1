#include "office/picture.h"

#include <utility>

namespace office {

Picture finishedPicture(double widthPt, double heightPt, std::string png) {
    std::promise<std::string> promise;
    promise.set_value(std::move(png));
    return {widthPt, heightPt, {}, promise.get_future().share()};
}

}  // namespace office
