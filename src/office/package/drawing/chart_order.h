#pragma once

#include <pugixml.hpp>

#include <string_view>

namespace office::package {

/// The child of an element of a chart, made where the schema wants it if it isn't there.
pugi::xml_node chartChild(pugi::xml_node parent, std::string_view name);

}  // namespace office::package
