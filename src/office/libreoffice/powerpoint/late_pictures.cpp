#include "office/libreoffice/powerpoint/late_pictures.h"

#include <chrono>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/guard.h"
#include "office/libreoffice/objects/picture_graphic.h"

namespace libreoffice::powerpoint {

namespace {

constexpr const char* source = "Shapes.AddPicture";

void show(const Connection& connection, const uno::Reference<css::beans::XPropertySet>& shape,
          const std::string& png) {
    try {
        const auto graphic = graphicOf(connection, png);
        if (!graphic.is())
            throw office::Failure(office::FailureNumber::ApplicationDefined, source,
                                  "LibreOffice could not read the picture");
        shape->setPropertyValue("Graphic", uno::Any(graphic));
    } catch (const uno::Exception&) {
        throwTranslated(connection, source);
    }
}

bool isGood(const std::shared_future<void>& one) {
    if (one.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return false;
    one.get();
    return true;
}

}  // namespace

void LatePictures::hang(const uno::Reference<css::beans::XPropertySet>& shape,
                        const office::Picture& picture) {
    std::erase_if(underWay_, isGood);
    underWay_.push_back(
        room_->afterwards(picture.png, [connection = connection_, shape](const std::string& png) {
            show(*connection, shape, png);
        }));
}

void LatePictures::settle() {
    for (const auto& one : std::exchange(underWay_, {})) one.get();
}

}  // namespace libreoffice::powerpoint
