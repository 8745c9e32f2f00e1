#include "office/libreoffice/word/line_width.h"

#include <com/sun/star/table/XTableRows.hpp>
#include <com/sun/star/text/TableColumnSeparator.hpp>
#include <com/sun/star/text/XTextColumns.hpp>
#include <com/sun/star/text/XTextTable.hpp>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "office/libreoffice/units.h"

namespace libreoffice::word {

namespace {

using Thing = uno::Reference<uno::XInterface>;

double lengthOf(const Thing& thing, const char* name) {
    return pointsOf(property<sal_Int32>(thing, name));
}

double withoutBorders(double width, const Thing& thing) {
    return width - lengthOf(thing, "LeftBorderDistance") - lengthOf(thing, "RightBorderDistance");
}

/// A cell of a row that is nothing but cells, by its name: "B3", and behind "Z" the small letters.
double widthOfCell(const Thing& cell, const Thing& table, double room) {
    const double width = std::min(room, lengthOf(table, "Width"));
    const std::string name = fromUno(property<rtl::OUString>(cell, "CellName"));
    const bool isPlain = name.size() > 1 && name.find_first_not_of("0123456789", 1) == name.npos;
    const auto rows = as<css::text::XTextTable>(table)->getRows();
    const sal_Int32 row = isPlain ? std::atoi(name.c_str() + 1) - 1 : -1;
    if (row < 0 || row >= rows->getCount()) return withoutBorders(width, cell);
    const auto separators = property<uno::Sequence<css::text::TableColumnSeparator>>(
        Thing(rows->getByIndex(row), uno::UNO_QUERY_THROW), "TableColumnSeparators");
    const sal_Int32 column = name[0] >= 'a' ? name[0] - 'a' + 26 : name[0] - 'A';
    const double whole = property<sal_Int16>(table, "TableColumnRelativeSum");
    const auto edge = [&](sal_Int32 number) {
        if (number == 0) return 0.0;
        return number > separators.getLength() ? whole : separators[number - 1].Position;
    };
    return withoutBorders(width * (edge(column + 1) - edge(column)) / whole, cell);
}

double widthOfColumn(const Thing& divided, double room) {
    const auto columns = property<uno::Reference<css::text::XTextColumns>>(divided, "TextColumns");
    if (!columns.is() || columns->getColumnCount() < 2) return room;
    double narrowest = room;
    for (const auto& column : columns->getColumns())
        narrowest = std::min(narrowest, room * column.Width / columns->getReferenceValue() -
                                            pointsOf(column.LeftMargin + column.RightMargin));
    return narrowest;
}

}  // namespace

double lineWidthAt(const uno::Reference<css::beans::XMultiPropertySet>& place,
                   const uno::Reference<css::beans::XMultiPropertySet>& pageStyle, double ofPage) {
    const NamedValues around(place, {"Cell", "TextFrame", "TextSection", "TextTable"});
    const auto thing = [&](const rtl::OUString& name) { return around.get<Thing>(name); };
    double room = ofPage;
    if (const Thing frame = thing("TextFrame"); frame.is())
        room = std::min(room, withoutBorders(lengthOf(frame, "Width"), frame));
    else
        room = widthOfColumn(pageStyle, room);
    if (const Thing section = thing("TextSection"); section.is())
        room = widthOfColumn(section, room);
    if (const Thing cell = thing("Cell"); cell.is())
        room = widthOfCell(cell, thing("TextTable"), room);
    return std::max(room, 1.0);
}

}  // namespace libreoffice::word
