#pragma once

#include <com/sun/star/awt/XDevice.hpp>
#include <com/sun/star/awt/XFont.hpp>

#include <array>
#include <map>
#include <string>
#include <tuple>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/uno_values.h"
#include "office/table_look.h"

namespace libreoffice::excel {

/// How wide texts are in the suite's fonts. A font is asked for 256 characters at once, so that
/// texts cost no calls of their own.
class TextWidths {
public:
    explicit TextWidths(const Connection& connection) : connection_(connection) {}

    /// In points, of one line, in the font of a cell.
    [[nodiscard]] double of(const std::string& line, const office::CellLook& look);

private:
    using Page = std::array<double, 256>;
    struct Font {
        uno::Reference<css::awt::XFont> font;
        /// Shares of the font's size.
        std::map<sal_Unicode, Page> pages;
    };
    using Key = std::tuple<std::string, bool, bool>;

    [[nodiscard]] Font& fontOf(const office::CellLook& look);
    [[nodiscard]] double widthOf(sal_Unicode character, Font& font) const;
    [[nodiscard]] uno::Sequence<sal_Int16> widthsOf(const uno::Reference<css::awt::XFont>& font,
                                                    sal_Unicode first, sal_Unicode last) const;

    const Connection& connection_;
    uno::Reference<css::awt::XDevice> device_;
    std::map<Key, Font> fonts_;
};

}  // namespace libreoffice::excel
