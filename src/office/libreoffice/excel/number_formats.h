#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/util/XNumberFormats.hpp>

#include <cstdint>
#include <map>
#include <string>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::excel {

/// The number formats of a workbook. A format's key never changes its meaning, so what was asked
/// once is remembered.
class NumberFormats {
public:
    enum class Kind { Boolean, Text, Other };

    explicit NumberFormats(uno::Reference<css::frame::XModel> model);

    [[nodiscard]] Kind kindOf(std::int32_t key);
    /// "General", "0.00", "@", ...
    [[nodiscard]] std::string codeOf(std::int32_t key);
    /// The key of a code, made if the workbook hasn't got it. `css::uno::Exception` if it is none.
    [[nodiscard]] std::int32_t keyFor(const std::string& code);
    [[nodiscard]] std::int32_t booleanKey();

private:
    struct Format {
        Kind kind = Kind::Other;
        std::string code;
    };

    [[nodiscard]] const uno::Reference<css::util::XNumberFormats>& formats();
    [[nodiscard]] const Format& format(std::int32_t key);

    uno::Reference<css::frame::XModel> model_;
    uno::Reference<css::util::XNumberFormats> formats_;
    std::map<std::int32_t, Format> known_;
    std::int32_t booleanKey_ = -1;
};

}  // namespace libreoffice::excel
