#include "office/package/document/sequence_fields.h"

#include <fmt/format.h>

#include <cstddef>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "office/package/document/reading_order.h"
#include "office/package/xml.h"
#include "office/text.h"

namespace office::package {

namespace {

/// The words of an instruction; what stands in quotes is one word.
std::vector<std::string> wordsOf(std::string_view instruction) {
    std::vector<std::string> words;
    bool isQuoted = false;
    bool isOpen = false;
    for (const char c : instruction) {
        const bool isBlank = c == ' ' || c == '\t' || c == '\n' || c == '\r';
        if (c == '"') {
            isQuoted = !isQuoted;
            if (isQuoted) words.emplace_back();
            isOpen = isQuoted;
        } else if (isBlank && !isQuoted) {
            isOpen = false;
        } else {
            if (!isOpen) words.emplace_back();
            isOpen = true;
            words.back() += c;
        }
    }
    return words;
}

/// A field while its text is read.
struct OpenField {
    std::string instruction;
    std::string ahead;
    std::vector<pugi::xml_node> shown;
    bool isResult = false;
};

class SequenceReader {
public:
    std::vector<SequenceField> fields;

    void read(pugi::xml_node text) {
        for (const pugi::xml_node paragraph : paragraphsIn(text)) {
            ahead_.clear();
            readParts(paragraph);
        }
    }

private:
    void readParts(pugi::xml_node parent) {
        visitInOrder(parent, [&](pugi::xml_node element) {
            const std::string_view name = localName(element);
            if (isTextObject(element) || name == "pPr" || name == "rPr") return false;
            if (name == "fldSimple") {
                open_.push_back({std::string(wordValue(element, "instr")), ahead_, {}, true});
                readParts(element);
                close();
                return false;
            }
            if (name == "fldChar") readMark(wordValue(element, "fldCharType"));
            if (name == "instrText" && !open_.empty() && !open_.back().isResult)
                open_.back().instruction += element.text().get();
            if (name == "t") readText(element);
            return true;
        });
    }

    void readMark(std::string_view type) {
        if (type == "begin") open_.push_back({{}, ahead_, {}, false});
        if (open_.empty()) return;
        if (type == "separate") open_.back().isResult = true;
        if (type == "end") close();
    }

    void readText(pugi::xml_node text) {
        if (!open_.empty() && !open_.back().isResult) return;
        if (!open_.empty()) open_.back().shown.push_back(text);
        ahead_ += text.text().get();
    }

    void close() {
        const OpenField field = std::move(open_.back());
        open_.pop_back();
        const auto words = wordsOf(field.instruction);
        if (words.size() < 2 || lowerCase(words[0]) != "seq") return;
        SequenceField found{
            .name = lowerCase(words[1]), .ahead = field.ahead, .shown = field.shown};
        std::int32_t& last = last_[found.name];
        std::optional<std::int32_t> wanted = last + 1;
        // A bookmark behind the name, or the switch c: the number of another one.
        if (words.size() > 2 && !words[2].starts_with('\\')) wanted = last;
        for (std::size_t i = 2; i < words.size(); ++i) {
            const std::string next = i + 1 < words.size() ? words[i + 1] : std::string();
            const std::string option = lowerCase(words[i]);
            if (option == "\\c") wanted = last;
            if (option == "\\r") wanted = static_cast<std::int32_t>(leadingNumber(next));
            // Counted anew in each chapter, which the field itself knows.
            if (option == "\\s" && !found.shown.empty())
                wanted = static_cast<std::int32_t>(leadingNumber(found.shown.front().text().get()));
            if (option == "\\s" || option == "\\h") found.isPlain = false;
            if (option == "\\*" && lowerCase(next) != "arabic" && lowerCase(next) != "mergeformat")
                found.isPlain = false;
        }
        last = found.number = *wanted;
        fields.push_back(std::move(found));
    }

    std::string ahead_;
    std::vector<OpenField> open_;
    std::map<std::string, std::int32_t> last_;
};

}  // namespace

std::vector<SequenceField> sequenceFieldsIn(pugi::xml_node text) {
    SequenceReader reader;
    reader.read(text);
    return std::move(reader.fields);
}

}  // namespace office::package
