#pragma once

#include <glib-object.h>

#include <memory>

namespace office::drawing {

/// What a `std::unique_ptr` lets go of an object with that a C library counts or frees itself.
template <auto release>
struct ReleasedBy {
    template <class Kind>
    void operator()(Kind* held) const {
        release(held);
    }
};

/// An object of GLib's, held once.
template <class Kind>
using Owned = std::unique_ptr<Kind, ReleasedBy<&g_object_unref>>;

}  // namespace office::drawing
