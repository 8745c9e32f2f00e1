#pragma once

#include "office/at_end.h"
#include "office/libreoffice/uno_values.h"

namespace libreoffice {

/// As `office::asFarAsPossible`, for what UNO throws too.
template <class Deed>
void asFarAsPossible(const Deed& deed) {
    office::asFarAsPossible([&] {
        try {
            deed();
        } catch (const uno::Exception&) {
            // There is nothing left to be done.
        }
    });
}

/// Does that when it goes.
template <class Deed>
[[nodiscard]] auto atEnd(Deed deed) {
    return office::AtEnd([deed] { asFarAsPossible(deed); });
}

}  // namespace libreoffice
