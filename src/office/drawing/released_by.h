#pragma once

namespace office::drawing {

/// What a `std::unique_ptr` lets go of an object with that a C library counts or frees itself.
template <auto release>
struct ReleasedBy {
    template <class Kind>
    void operator()(Kind* held) const {
        release(held);
    }
};

}  // namespace office::drawing
