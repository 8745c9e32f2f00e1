#include "apps/status_line.h"

#include <string>

namespace apps {

namespace {

/// Back to the line's start; then, erase what stands right of the cursor.
constexpr const char* lineStart = "\r";
constexpr const char* eraseRest = "\x1b[K";

}  // namespace

void StatusLine::show(std::string_view text) {
    if (!isWanted_) return;
    console_.writeError(std::string(lineStart) + std::string(text) + eraseRest);
    isShown_ = true;
}

void StatusLine::clear() {
    if (!isShown_) return;
    console_.writeError(std::string(lineStart) + eraseRest);
    isShown_ = false;
}

}  // namespace apps
