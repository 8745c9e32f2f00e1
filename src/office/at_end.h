#pragma once

#include <utility>

#include "office/failure.h"

namespace office {

/// Puts something back or takes it away, unless the document or the suite has gone and it with
/// them.
template <class Deed>
void asFarAsPossible(Deed&& deed) {
    try {
        std::forward<Deed>(deed)();
    } catch (const Failure&) {
        // It stays as it is; the call that follows says so where everything has gone.
    }
}

/// Does the same when it goes.
template <class Deed>
class AtEnd {
public:
    explicit AtEnd(Deed deed) : deed_(std::move(deed)) {}
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;
    ~AtEnd() { asFarAsPossible(deed_); }

private:
    Deed deed_;
};

}  // namespace office
