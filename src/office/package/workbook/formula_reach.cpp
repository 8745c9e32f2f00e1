#include "office/package/workbook/formula_reach.h"

#include <algorithm>
#include <array>

#include "office/model/excel/cell_block.h"
#include "office/text.h"

namespace office::package {

namespace {

/// Functions whose cells don't stand in the formula, or not on the sheet. The last one takes what
/// another formula spills, and only with what a copy of a sheet goes without.
constexpr std::array<std::string_view, 11> farFunctions = {
    "indirect",         "getpivotdata",     "rtd",          "cubemember",         "cubevalue",
    "cubeset",          "cuberankedmember", "cubesetcount", "cubememberproperty", "cubekpimember",
    "_xlfn.anchorarray"};

bool isOfWord(char c) {
    const auto code = static_cast<unsigned char>(c);
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           code >= 0x80 || std::string_view("_.\\?$").find(c) != std::string_view::npos;
}

bool isColumn(std::string_view word) {
    constexpr std::size_t longest = 4;
    return word.size() <= longest && std::all_of(word.begin(), word.end(), [](char c) {
               return c == '$' || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
           });
}

}  // namespace

/// Goes through a formula word by word.
class FormulaReach::Reader {
public:
    Reader(const FormulaReach& reach, std::string_view formula) : reach_(reach), text_(formula) {}

    Finding read() {
        while (at_ < text_.size() && !finding_.leaves) step();
        return finding_;
    }

private:
    [[nodiscard]] char next() const { return at_ < text_.size() ? text_[at_] : '\0'; }

    void step() {
        const char c = next();
        if (c == '"') {
            text(quoted('"'));
        } else if (c == '\'') {
            sheet(quoted('\''));
        } else if (c == '#') {
            // An error such as #REF! or #N/A.
            while (next() != '\0' && (next() == '#' || next() == '/' || isOfWord(next()))) ++at_;
            if (next() == '!') ++at_;
        } else if (c == '[') {
            // Another workbook; a table's columns follow its name.
            finding_.leaves = true;
        } else if (isOfWord(c)) {
            word();
        } else {
            ++at_;
        }
    }

    /// What stands between two marks, of which a doubled one stands for itself.
    std::string quoted(char mark) {
        std::string inner;
        for (++at_; at_ < text_.size(); ++at_) {
            if (text_[at_] == mark) {
                if (at_ + 1 >= text_.size() || text_[at_ + 1] != mark) break;
                ++at_;
            }
            inner += text_[at_];
        }
        ++at_;
        return inner;
    }

    /// Where a link leads is told by a text.
    void text(std::string_view literal) {
        if (!hasLink_) return;
        if (literal.starts_with('[')) finding_.leaves = true;
        if (literal.starts_with('#')) finding_.leaves = reach_.leavesSheet(literal.substr(1));
    }

    /// The name of a sheet, ahead of its mark.
    void sheet(std::string_view name) {
        if (next() == '!') ++at_;
        if (sameIgnoringCase(name, reach_.sheet_)) {
            finding_.namesSheet = true;
        } else {
            finding_.leaves = true;
        }
    }

    void word() {
        const std::size_t begin = at_;
        while (isOfWord(next())) ++at_;
        const std::string_view found = text_.substr(begin, at_ - begin);
        const bool isAfterColon = begin > 0 && text_[begin - 1] == ':';
        // A sheet at the end of a row of sheets.
        if (next() == '!' && isAfterColon) finding_.leaves = true;
        if (next() == '!') return sheet(found);
        const std::string name = lowerCase(found);
        if (next() == '(') {
            finding_.leaves = isFarFunction(found, name);
            hasLink_ = hasLink_ || name == "hyperlink";
            return;
        }
        const bool isNumber = found.front() >= '0' && found.front() <= '9';
        const bool isBeforeColon =
            next() == ':' && at_ + 1 < text_.size() && isOfWord(text_[at_ + 1]);
        const bool isEdge = isColumn(found) && (isAfterColon || isBeforeColon);
        const bool isValue = name == "true" || name == "false" || name.starts_with("_xlpm.");
        if (isNumber || isEdge || isValue || found.front() == '$' ||
            office::model::excel::blockOf(found))
            return;
        finding_.leaves = !reach_.names_.contains(name);
        if (next() == '[') columns();
    }

    [[nodiscard]] bool isFarFunction(std::string_view written, const std::string& name) const {
        const auto* const far = std::find(farFunctions.begin(), farFunctions.end(), name);
        if (far != farFunctions.end() || name.starts_with("_xll.")) return true;
        if (reach_.callable_.contains(name) && !reach_.names_.contains(name)) return true;
        // Excel writes its own functions in capitals, macros as they are declared.
        return reach_.hasMacros_ && !name.starts_with("_xl") &&
               std::any_of(written.begin(), written.end(),
                           [](char c) { return c >= 'a' && c <= 'z'; });
    }

    /// The columns of a table, in brackets that may stand in each other.
    void columns() {
        int depth = 0;
        do {
            // An apostrophe stands ahead of a bracket that belongs to a name.
            if (next() == '\'')
                ++at_;
            else if (next() == '[')
                ++depth;
            else if (next() == ']')
                --depth;
            ++at_;
        } while (depth > 0 && at_ < text_.size());
    }

    const FormulaReach& reach_;
    std::string_view text_;
    std::size_t at_ = 0;
    Finding finding_;
    bool hasLink_ = false;
};

FormulaReach::FormulaReach(std::string_view sheet) : sheet_(sheet) {}

void FormulaReach::add(std::string_view name) {
    names_.insert(lowerCase(name));
}

void FormulaReach::remove(std::string_view name) {
    names_.erase(lowerCase(name));
}

void FormulaReach::addCallable(std::string_view name) {
    callable_.insert(lowerCase(name));
}

FormulaReach::Finding FormulaReach::read(std::string_view formula) const {
    return Reader(*this, formula).read();
}

bool FormulaReach::leavesSheet(std::string_view formula) const {
    return read(formula).leaves;
}

bool FormulaReach::namesSheet(std::string_view formula) const {
    return read(formula).namesSheet;
}

}  // namespace office::package
