#include "office/model/word/sequence_name.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "office/text.h"

namespace office::model::word {

namespace {

/// Of Word.
constexpr std::size_t longestName = 40;

/// LibreOffice reads the number of a caption as a formula, "name+1".
constexpr std::array<std::string_view, 46> wordsOfFormulas = {
    "abs",  "acos",   "add",  "and",  "asin",    "atan",  "average", "char",  "cos",  "count",
    "date", "div",    "e",    "eq",   "false",   "g",     "geq",     "graph", "int",  "l",
    "leq",  "max",    "mean", "min",  "mul",     "neq",   "not",     "ole",   "or",   "page",
    "para", "phd",    "pi",   "pow",  "product", "round", "sign",    "sin",   "sqrt", "sub",
    "sum",  "tables", "tan",  "true", "word",    "xor"};

bool isDigit(std::string_view character) {
    return character >= "0" && character <= "9";
}

/// Letters, digits and the low line; of other scripts all that aren't signs.
bool fitsName(std::string_view character) {
    const auto first = static_cast<unsigned char>(character[0]);
    if (character.size() == 1)
        return isDigit(character) || (first >= 'a' && first <= 'z') ||
               (first >= 'A' && first <= 'Z') || first == '_';
    // From U+00C0 on, without the signs of U+2000 to U+2FFF, and nothing beyond U+FFFF.
    return character.size() < 4 && character != "×" && character != "÷" && first > 0xC2 &&
           first != 0xE2 && first != 0xEF && character.substr(0, 2) != "\xE3\x80";
}

std::string plainName(std::string_view label, std::size_t longest) {
    constexpr std::string_view lead = "Label_";
    std::string name;
    std::size_t count = 0;
    for (const auto& [character, code] : charactersOf(label)) {
        if (count >= longest) break;
        if (count == 0 && (!fitsName(character) || character == "_" || isDigit(character))) {
            name = lead;
            count = lead.size();
        }
        name += fitsName(character) ? character : "_";
        ++count;
    }
    return name.empty() ? std::string(lead) : name;
}

}  // namespace

std::string sequenceName(std::string_view label, int number) {
    const std::string end = number > 1 ? fmt::format("_{}", number) : "";
    std::string name = plainName(label, longestName - end.size()) + end;
    const bool isTaken = std::find(wordsOfFormulas.begin(), wordsOfFormulas.end(),
                                   lowerCase(name)) != wordsOfFormulas.end();
    return isTaken ? name + "_" : name;
}

}  // namespace office::model::word
