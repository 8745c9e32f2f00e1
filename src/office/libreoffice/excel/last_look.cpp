#include "office/libreoffice/excel/last_look.h"

#include "office/libreoffice/excel/calc_document.h"

namespace libreoffice::excel {

void LastLook::note(const CalcDocument& book) {
    at_ = book.ownChanges();
}

bool LastLook::holds(const CalcDocument& book) const {
    return book.isUndisturbed() && at_ == book.ownChanges();
}

}  // namespace libreoffice::excel
