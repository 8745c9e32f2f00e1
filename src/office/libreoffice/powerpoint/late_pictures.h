#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>

#include <exception>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "office/drawing/drawing_room.h"
#include "office/libreoffice/connection.h"
#include "office/picture.h"

namespace libreoffice::powerpoint {

/// Pictures of a presentation whose shapes stand on their slides while they are still drawn. Each
/// comes into its shape as soon as it is there.
class LatePictures {
public:
    LatePictures(std::shared_ptr<Connection> connection,
                 std::shared_ptr<office::drawing::DrawingRoom> room)
        : connection_(std::move(connection)),
          room_(std::move(room)) {}

    void hang(const uno::Reference<css::beans::XPropertySet>& shape,
              const office::Picture& picture);
    /// The picture of a file that may still be drawn; none if it is not of this room.
    [[nodiscard]] std::optional<office::Picture> take(const std::string& file) {
        return room_->take(file);
    }
    /// Waits until none is under way.
    void wait();
    /// The same, and tells what went wrong since the last time: `office::Failure` 1004 of
    /// "Shapes.AddPicture" if one could not be drawn, `office::SuiteLost`.
    void settle();

private:
    void letGoOfFinished();

    std::shared_ptr<Connection> connection_;
    std::shared_ptr<office::drawing::DrawingRoom> room_;
    std::vector<std::shared_future<void>> underWay_;
    std::exception_ptr firstFailure_;
};

}  // namespace libreoffice::powerpoint
