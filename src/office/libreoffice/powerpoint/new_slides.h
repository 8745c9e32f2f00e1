#pragma once

#include <cstdint>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/powerpoint/held_page.h"

namespace libreoffice::powerpoint {

/// New slides that were added one in front of the other and that nobody has touched since.
///
/// One of them is like the next. So another one may come after them and the first of them be called
/// the new one: nobody can tell the difference, and LibreOffice, in which a slide comes in front
/// only by being moved there, takes ten times as long for that.
class NewSlides {
public:
    /// Whether a slide of this layout at this place (from 1) would come in front of them. No, if
    /// any call at all has been made since they were added, or one of them is in somebody's hands.
    [[nodiscard]] bool areAt(const Connection& connection, std::int32_t place,
                             std::int32_t layout) const;
    [[nodiscard]] const HeldPagePtr& first() const { return first_; }
    [[nodiscard]] std::int32_t count() const { return count_; }

    void beginWith(const Connection& connection, const HeldPagePtr& slide, std::int32_t layout);
    void add(const Connection& connection);

private:
    HeldPagePtr first_;
    std::int32_t count_ = 0;
    std::int32_t layout_ = 0;
    std::uint64_t callsBefore_ = 0;
};

}  // namespace libreoffice::powerpoint
