#pragma once

#include <cstdint>
#include <optional>

namespace libreoffice::excel {

class CalcDocument;

/// When something of a workbook was seen last. Where nobody but this program changes the workbook,
/// that holds until it does; where somebody may, it never holds.
class LastLook {
public:
    void note(const CalcDocument& book);
    [[nodiscard]] bool holds(const CalcDocument& book) const;

private:
    std::optional<std::uint64_t> at_;
};

}  // namespace libreoffice::excel
