#pragma once

#include <cstdint>

/// Word's own numbers for what several exports ask of it.
namespace destinations::number {

/// Styles.
constexpr std::int32_t normal = -1;
constexpr std::int32_t heading1 = -2;
constexpr std::int32_t title = -63;

/// `Collapse`.
constexpr std::int32_t toEnd = 0;

/// What `PasteSpecial` pastes, and where to.
constexpr std::int32_t oleObject = 0;
constexpr std::int32_t inLine = 0;
constexpr std::int32_t overTheText = 1;

/// `ExportAsFixedFormat`.
constexpr std::int32_t pdf = 17;

}  // namespace destinations::number
