#include "office/libreoffice/powerpoint/late_pictures.h"

#include <algorithm>
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
    translated(connection, source, [&] {
        const auto graphic = graphicOf(connection, png);
        if (!graphic.is()) office::refuse(source, "LibreOffice could not read the picture");
        shape->setPropertyValue("Graphic", uno::Any(graphic));
    });
}

}  // namespace

void LatePictures::hang(const uno::Reference<css::beans::XPropertySet>& shape,
                        const office::Picture& picture) {
    letGoOfFinished();
    underWay_.push_back(
        room_->afterwards(picture.png, [connection = connection_, shape](const std::string& png) {
            show(*connection, shape, png);
        }));
}

/// Each holds its picture. A failure is kept until it is asked for: the call at hand is not to
/// blame.
void LatePictures::letGoOfFinished() {
    const auto isUnderWay = [](const std::shared_future<void>& one) {
        return one.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
    };
    const auto finished = std::stable_partition(underWay_.begin(), underWay_.end(), isUnderWay);
    std::for_each(finished, underWay_.end(), [this](const std::shared_future<void>& one) {
        try {
            one.get();
        } catch (const std::exception&) {
            if (!firstFailure_) firstFailure_ = std::current_exception();
        }
    });
    underWay_.erase(finished, underWay_.end());
}

void LatePictures::wait() {
    for (const auto& one : underWay_) one.wait();
    letGoOfFinished();
}

void LatePictures::settle() {
    wait();
    const auto failure = std::exchange(firstFailure_, nullptr);
    if (!failure) return;
    try {
        std::rethrow_exception(failure);
    } catch (const office::SuiteLost&) {
        throw;
    } catch (const std::exception& error) {
        office::refuse(source, error.what());
    }
}

}  // namespace libreoffice::powerpoint
