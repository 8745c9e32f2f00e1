#include "office/package/document/sequence_fields.h"

#include <fmt/format.h>

#include <algorithm>
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

/// Beyond this Word counts no further.
constexpr std::int32_t highestNumber = 32767;

std::int32_t countIn(const std::string& text) {
    return static_cast<std::int32_t>(
        std::clamp(leadingNumber(text), 0.0, static_cast<double>(highestNumber)));
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
    explicit SequenceReader(const std::function<void(const SequenceField&)>& visit)
        : visit_(visit) {}

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
                begin(std::string(wordValue(element, "instr")), true);
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

    /// Fields stand in each other no deeper than Word takes it; where they do, the outermost go.
    void begin(std::string instruction, bool isResult) {
        constexpr std::size_t deepest = 20;
        if (open_.size() >= deepest) open_.erase(open_.begin());
        open_.push_back({std::move(instruction), ahead_, {}, isResult});
    }

    void readMark(std::string_view type) {
        if (type == "begin") begin({}, false);
        if (open_.empty()) return;
        if (type == "separate") open_.back().isResult = true;
        if (type == "end") close();
    }

    void readText(pugi::xml_node text) {
        if (!open_.empty() && !open_.back().isResult) return;
        if (!open_.empty()) open_.back().shown.push_back(text);
        constexpr std::size_t longestLabel = 512;
        if (ahead_.size() < longestLabel)
            ahead_ += std::string_view(text.text().get()).substr(0, longestLabel);
    }

    void close() {
        if (open_.empty()) return;
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
            if (option == "\\r") wanted = countIn(next);
            // Counted anew in each chapter, which the field itself knows.
            if (option == "\\s" && !found.shown.empty())
                wanted = countIn(found.shown.front().text().get());
            if (option == "\\s" || option == "\\h") found.isPlain = false;
            if (option == "\\*" && lowerCase(next) != "arabic" && lowerCase(next) != "mergeformat")
                found.isPlain = false;
        }
        last = found.number = *wanted;
        visit_(found);
    }

    const std::function<void(const SequenceField&)>& visit_;
    std::string ahead_;
    std::vector<OpenField> open_;
    std::map<std::string, std::int32_t> last_;
};

}  // namespace

void visitSequenceFields(pugi::xml_node text,
                         const std::function<void(const SequenceField&)>& visit) {
    SequenceReader(visit).read(text);
}

}  // namespace office::package
