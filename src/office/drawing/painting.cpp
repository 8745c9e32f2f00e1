#include "office/drawing/painting.h"

#include "office/failure.h"

namespace office::drawing {

void failToDraw(const std::string& reason) {
    throw Failure(FailureNumber::ApplicationDefined, "Picture",
                  "The picture could not be drawn: " + reason);
}

}  // namespace office::drawing
