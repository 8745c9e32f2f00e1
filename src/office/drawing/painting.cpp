#include "office/drawing/painting.h"

#include "office/failure.h"

namespace office::drawing {

void failToDraw(const std::string& reason) {
    refuse("Picture", "The picture could not be drawn: " + reason);
}

}  // namespace office::drawing
