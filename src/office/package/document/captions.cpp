#include "office/package/document/captions.h"

#include <fmt/format.h>

#include <algorithm>

#include "office/model/word/sequence_name.h"
#include "office/package/document/sequence_fields.h"
#include "office/package/xml.h"
#include "office/text.h"

namespace office::package {

namespace word = office::model::word;

namespace {

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
    visitSequenceFields(text_, [&](const SequenceField& field) {
        Counted& counted = (*known_)[field.name];
        counted.last = field.number;
        counted.labels.insert(keyOf(field.ahead));
    });
    return *known_;
}

/// The name that the label has already, or else the first that stands for no other label.
std::string Captions::nameFor(const std::string& label) {
    const std::string key = keyOf(label);
    const std::string plain = lowerCase(word::sequenceName(key));
    for (int number = 1;; ++number) {
        std::string name = word::sequenceName(withoutEndBlanks(label), number);
        const auto found = known().find(lowerCase(name));
        if (found == known().end()) return name;
        const auto& labels = found->second.labels;
        if (labels.contains(key)) return name;
        // "Figure 1-" may stand ahead of the numbers of "Figure".
        const bool isAnothers = std::any_of(labels.begin(), labels.end(), [&](const auto& other) {
            return number > 1 || lowerCase(word::sequenceName(other)) == plain;
        });
        if (!isAnothers) return name;
    }
}

void Captions::write(pugi::xml_node paragraph, const word::Caption& caption, bool isLast) {
    const std::string label = legible(caption.label);
    const std::string name = nameFor(label);
    Counted& counted = known()[lowerCase(name)];
    addRun(paragraph, label + " ");
    const auto field = insertMarkup(
        paragraph,
        R"(<w:fldSimple w:instr=""><w:r><w:rPr><w:noProof/></w:rPr><w:t/></w:r></w:fldSimple>)");
    setWordValue(field, "instr", fmt::format(R"( SEQ {} \* ARABIC )", name));
    field.first_child().last_child().text().set(++counted.last);
    if (const std::string title = legible(caption.title); !title.empty()) addRun(paragraph, title);
    counted.labels.insert(keyOf(label));
    if (!isLast) renumber(lowerCase(name));
}

void Captions::renumber(const std::string& name) {
    known_.reset();
    visitSequenceFields(text_, [&](const SequenceField& field) {
        if (field.name == name && field.isPlain && field.shown.size() == 1)
            pugi::xml_node(field.shown.front()).text().set(field.number);
    });
}

}  // namespace office::package
