#pragma once

#include <com/sun/star/lang/DisposedException.hpp>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::excel {

/// What cells have answered. Once their workbook is closed they answer with nothing, where other
/// objects fail: `css::lang::DisposedException` then.
template <class Interface>
[[nodiscard]] uno::Reference<Interface> answered(const uno::Reference<Interface>& answer) {
    if (!answer.is()) throw css::lang::DisposedException("The workbook has been closed", {});
    return answer;
}

}  // namespace libreoffice::excel
