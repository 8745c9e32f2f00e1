#include "office/package/workbook/sheet_notes.h"

#include <cstdlib>
#include <string_view>
#include <vector>

#include "office/model/excel/cell_block.h"

namespace office::package {

namespace {

pugi::xml_node listIn(const Xml& notes, std::string_view name) {
    return childNamed(notes.root(), ns::spreadsheet, name);
}

std::vector<pugi::xml_node> authorsIn(const Xml& notes) {
    return childrenNamed(listIn(notes, "authors"), ns::spreadsheet, "author");
}

/// The author of such a copy is the conversation, by its number.
std::vector<pugi::xml_node> copiesIn(const Xml& notes) {
    const auto authors = authorsIn(notes);
    std::vector<pugi::xml_node> copies;
    for (const pugi::xml_node note :
         childrenNamed(listIn(notes, "commentList"), ns::spreadsheet, "comment")) {
        const unsigned author = note.attribute("authorId").as_uint();
        if (author < authors.size() &&
            std::string_view(authors[author].text().get()).starts_with("tc="))
            copies.push_back(note);
    }
    return copies;
}

/// The number in an element of a drawing of the old kind, which need not be XML; -1 without.
int numberIn(std::string_view shape, std::string_view element) {
    const std::string start = ":" + std::string(element) + ">";
    const auto at = shape.find(start);
    if (at == std::string_view::npos) return -1;
    return std::atoi(std::string(shape.substr(at + start.size(), 10)).c_str());
}

}  // namespace

NotedCells conversationsIn(const Xml& notes) {
    NotedCells cells;
    for (const pugi::xml_node note : copiesIn(notes)) {
        if (const auto cell = office::model::excel::blockOf(note.attribute("ref").value()))
            cells.emplace(cell->firstColumn, cell->firstRow);
    }
    return cells;
}

bool dropConversations(const Xml& notes) {
    pugi::xml_node list = listIn(notes, "commentList");
    for (const pugi::xml_node copy : copiesIn(notes)) list.remove_child(copy);
    const auto left = childrenNamed(list, ns::spreadsheet, "comment");
    std::set<unsigned> speaking;
    for (const pugi::xml_node note : left) speaking.insert(note.attribute("authorId").as_uint());
    // Notes name their author by his place.
    unsigned place = 0;
    for (pugi::xml_node author : authorsIn(notes)) {
        if (!speaking.contains(place++)) author.text().set("");
    }
    return !left.empty();
}

bool holdsNotesAlone(const std::string& drawing) {
    constexpr std::string_view mark = "ObjectType=\"";
    std::size_t notes = 0;
    for (auto at = drawing.find(mark); at != std::string::npos; at = drawing.find(mark, at)) {
        at += mark.size();
        if (!std::string_view(drawing).substr(at).starts_with("Note\"")) return false;
        ++notes;
    }
    return notes > 0;
}

std::string withoutBoxesOf(const NotedCells& cells, const std::string& drawing) {
    constexpr std::string_view begin = "<v:shape ";
    constexpr std::string_view end = "</v:shape>";
    std::string left;
    std::size_t taken = 0;
    for (auto at = drawing.find(begin); at != std::string::npos; at = drawing.find(begin, taken)) {
        const auto last = drawing.find(end, at);
        if (last == std::string::npos) break;
        left.append(drawing, taken, at - taken);
        taken = last + end.size();
        const std::string_view shape = std::string_view(drawing).substr(at, taken - at);
        if (!cells.contains({numberIn(shape, "Column"), numberIn(shape, "Row")})) left += shape;
    }
    left.append(drawing, taken);
    return left;
}

}  // namespace office::package
