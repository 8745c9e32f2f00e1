#pragma once

#include <pugixml.hpp>

#include <string>

#include "office/copied.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/presentation/file_slide.h"
#include "office/table_look.h"

namespace office::package {

/// The markup of a table as the files write it (a:tbl), with everything in it made larger or
/// smaller. `measure` says how high its texts are: a row that is lower than they are would grow.
[[nodiscard]] std::string tableMarkup(const TableLook& look, double scale,
                                      const MeasureText& measure);

/// Puts copied cells on a slide as a table that looks as they do, no larger than there is room.
FileShapePtr pasteTable(FileSlide& slide, const Copied& copied);

/// The table that a shape holds; null for any other shape.
[[nodiscard]] pugi::xml_node tableIn(pugi::xml_node shape);

/// Gives a table's columns and rows other lengths, in proportion to those that they had. The
/// characters follow the smaller one of both, so that they fit where they did before.
void stretchTable(pugi::xml_node table, double across, double down);

}  // namespace office::package
