#include "apps/terminal_progress.h"

#include <fmt/format.h>

#include <algorithm>

namespace apps {

namespace {

int asPercent(int value) {
    return std::clamp(value, 0, 100);
}

}  // namespace

void TerminalProgress::setLoadingValue(int percent) {
    loading_ = asPercent(percent);
    line_.show(fmt::format("Reading the workbook  {}%", loading_));
}

void TerminalProgress::setValue(int percent, std::string_view text) {
    value_ = asPercent(percent);
    text_ = text;
}

void TerminalProgress::show() {
    line_.show(fmt::format("Exporting item {} of {}  {}", current_, total_, text_));
}

}  // namespace apps
