#pragma once

#include <com/sun/star/awt/XDevice.hpp>

#include <map>
#include <string>

#include "office/drawing/drawn_widths.h"
#include "office/drawing/metafile.h"
#include "office/libreoffice/connection.h"
#include "office/libreoffice/uno_values.h"

namespace libreoffice::excel {

/// Whether the suite and the drawing room take the same fonts for the same names: both have their
/// own ways to replace a font that is missing, and the suite has fonts of its own.
class SameFonts {
public:
    explicit SameFonts(std::shared_ptr<Connection> connection)
        : connection_(std::move(connection)) {}

    /// The names of the first font of a text that they differ in, or that lacks a character; empty
    /// if there is none. A font is asked for once, and again for further characters.
    [[nodiscard]] std::string firstOther(const office::drawing::Metafile& metafile);

private:
    using NamedFont = office::drawing::NamedFont;

    [[nodiscard]] bool isSame(const NamedFont& font, const std::string& line);
    [[nodiscard]] double suiteWidth(const NamedFont& font, const std::string& line);

    std::shared_ptr<Connection> connection_;
    uno::Reference<css::awt::XDevice> device_;
    office::drawing::DrawnWidths drawn_;
    std::map<NamedFont, std::map<std::string, bool>> known_;
};

}  // namespace libreoffice::excel
