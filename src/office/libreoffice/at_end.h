#pragma once

#include <utility>

#include "office/failure.h"
#include "office/libreoffice/uno_values.h"

namespace libreoffice {

/// Puts something back or takes it away, unless the document or the suite has gone and it with
/// them.
template <class Deed>
void asFarAsPossible(Deed deed) {
    try {
        deed();
    } catch (const uno::Exception&) {
        // There is nothing left to be done.
    } catch (const office::Failure&) {
        // It stays as it is.
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

}  // namespace libreoffice
