#pragma once

#include <string>
#include <string_view>

#include "office/package/xml.h"

namespace office::package {

/// A sheet's markup up to its cells, or up to the drawing of one that is a chart. The cells, which
/// may be more than any markup that is read, stay bytes.
class SheetHead {
public:
    /// Of a sheet's whole part. `PackageError` as of `Xml`.
    SheetHead(std::string_view bytes, std::string_view part);

    [[nodiscard]] pugi::xml_node root() const { return xml_.root(); }
    /// The whole part, as it has been changed.
    [[nodiscard]] std::string bytes() const;

private:
    struct Cut {
        std::string head;
        /// What closes the head's root in place of the rest.
        std::string closing;
        std::string_view rest;
    };
    SheetHead(Cut cut, std::string_view part);
    [[nodiscard]] static Cut cut(std::string_view bytes);

    std::string closing_;
    std::string rest_;
    Xml xml_;
};

}  // namespace office::package
