#include "office/package/document/captions.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

#include "office/package/document/sequence_fields.h"
#include "office/package/xml.h"
#include "office/text.h"

namespace office::package {

namespace {

/// As many as Word takes of a name.
constexpr std::size_t longestName = 40;

/// Whether a character may stand in the name of a sequence: letters, digits and the low line; of
/// other scripts all that aren't signs.
bool fitsName(std::string_view character) {
    const auto first = static_cast<unsigned char>(character[0]);
    if (character.size() == 1)
        return (first >= '0' && first <= '9') || (first >= 'a' && first <= 'z') ||
               (first >= 'A' && first <= 'Z') || first == '_';
    // From U+00C0 on, without the signs of U+2000 to U+2FFF, and nothing beyond U+FFFF.
    return character.size() < 4 && character != "×" && character != "÷" && first > 0xC2 &&
           first != 0xE2 && first != 0xEF && character.substr(0, 2) != "\xE3\x80";
}

bool isLetter(std::string_view character) {
    return fitsName(character) && character != "_" && (character < "0" || character > "9");
}

/// A label as the name of a sequence: nothing but letters, digits and low lines, a letter first.
std::string plainName(const std::string& label, std::size_t longest = longestName) {
    constexpr std::string_view lead = "Label_";
    std::string name;
    std::size_t count = 0;
    for (std::size_t i = 0; i < label.size() && count < longest; ++count) {
        const std::size_t length = std::max<std::size_t>(characterLength(label, i), 1);
        const std::string_view character = std::string_view(label).substr(i, length);
        if (i == 0 && !isLetter(character)) {
            name = lead;
            count = lead.size();
        }
        name += fitsName(character) ? character : "_";
        i += length;
    }
    return name.empty() ? std::string(lead) : name;
}

std::string oneLine(const std::string& text) {
    std::string line = legible(text);
    for (const char c : {'\n', '\r', '\t'}) std::replace(line.begin(), line.end(), c, ' ');
    return line;
}

std::string withoutEndBlanks(std::string text) {
    const auto last = text.find_last_not_of(" \t\n\xC2\xA0");
    text.erase(last == std::string::npos ? 0 : last + 1);
    return text;
}

std::string keyOf(const std::string& label) {
    return lowerCase(withoutEndBlanks(label));
}

void addRun(pugi::xml_node paragraph, const std::string& text) {
    const auto run = insertMarkup(paragraph, R"(<w:r><w:t xml:space="preserve"/></w:r>)");
    run.first_child().text().set(text.c_str());
}

}  // namespace

Captions::ByName& Captions::known() {
    if (known_) return *known_;
    known_.emplace();
    for (const SequenceField& field : sequenceFieldsIn(text_)) {
        Counted& counted = (*known_)[field.name];
        counted.last = field.number;
        std::string label = keyOf(field.ahead);
        if (std::find(counted.labels.begin(), counted.labels.end(), label) == counted.labels.end())
            counted.labels.push_back(std::move(label));
    }
    return *known_;
}

/// The name that the label has already, or else the first that stands for no other label.
std::string Captions::nameFor(const std::string& label) {
    const std::string key = keyOf(label);
    const std::string plain = plainName(withoutEndBlanks(label));
    std::string name = plain;
    for (int n = 2;; ++n) {
        const auto found = known().find(lowerCase(name));
        if (found == known().end()) return name;
        const auto& labels = found->second.labels;
        if (std::find(labels.begin(), labels.end(), key) != labels.end()) return name;
        // "Figure 1-" may stand ahead of the numbers of "Figure".
        const bool isAnothers = std::any_of(labels.begin(), labels.end(), [&](const auto& other) {
            return n > 2 || lowerCase(plainName(other)) == lowerCase(plain);
        });
        if (!isAnothers) return name;
        const std::string number = fmt::format("_{}", n);
        name = plainName(withoutEndBlanks(label), longestName - number.size()) + number;
    }
}

void Captions::write(pugi::xml_node paragraph, const office::model::word::Caption& caption,
                     bool isLast) {
    const std::string label = oneLine(caption.label);
    const std::string name = nameFor(label);
    Counted& counted = known()[lowerCase(name)];
    addRun(paragraph, label + " ");
    const auto field = insertMarkup(
        paragraph,
        R"(<w:fldSimple w:instr=""><w:r><w:rPr><w:noProof/></w:rPr><w:t/></w:r></w:fldSimple>)");
    setWordValue(field, "instr", fmt::format(R"( SEQ {} \* ARABIC )", name));
    field.first_child().last_child().text().set(++counted.last);
    if (const std::string title = oneLine(caption.title); !title.empty()) addRun(paragraph, title);
    const std::string key = keyOf(label);
    if (std::find(counted.labels.begin(), counted.labels.end(), key) == counted.labels.end())
        counted.labels.push_back(key);
    if (!isLast) renumber(lowerCase(name));
}

void Captions::renumber(const std::string& name) {
    known_.reset();
    for (const SequenceField& field : sequenceFieldsIn(text_)) {
        if (field.name == name && field.isPlain && field.shown.size() == 1)
            pugi::xml_node(field.shown.front()).text().set(field.number);
    }
}

}  // namespace office::package
