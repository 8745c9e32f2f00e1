#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/util/XNumberFormats.hpp>
#include <com/sun/star/util/XNumberFormatter.hpp>

#include <cstdint>
#include <map>
#include <string>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/uno_values.h"

namespace libreoffice::excel {

/// The number formats of a workbook. A format's key never changes its meaning, so what was asked
/// once is remembered.
class NumberFormats {
public:
    enum class Kind { Boolean, Text, Other };

    NumberFormats(const Connection& connection, uno::Reference<css::frame::XModel> model);

    [[nodiscard]] Kind kindOf(std::int32_t key);
    /// "General", "0.00", "@", ... "General" in every language of the suite or of the format.
    [[nodiscard]] std::string codeOf(std::int32_t key);
    /// The colour that a format gives a number, such as red to one below zero; `otherwise` if it
    /// gives none. 0xBBGGRR.
    [[nodiscard]] std::int32_t colourOf(double number, std::int32_t key, std::int32_t otherwise);
    /// The key of a code, made if the workbook hasn't got it. `css::uno::Exception` if it is none.
    [[nodiscard]] std::int32_t keyFor(const std::string& code);
    [[nodiscard]] std::int32_t booleanKey();

private:
    struct Format {
        Kind kind = Kind::Other;
        std::string code;
        /// By the number's sign, or by the number where the code compares it with others.
        std::map<double, std::int32_t> colours;
    };

    [[nodiscard]] const uno::Reference<css::util::XNumberFormats>& formats();
    [[nodiscard]] Format& format(std::int32_t key);

    const Connection& connection_;
    uno::Reference<css::frame::XModel> model_;
    uno::Reference<css::util::XNumberFormats> formats_;
    uno::Reference<css::util::XNumberFormatter> formatter_;
    std::map<std::int32_t, Format> known_;
    std::int32_t booleanKey_ = -1;
};

}  // namespace libreoffice::excel
