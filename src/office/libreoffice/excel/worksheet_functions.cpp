#include "office/libreoffice/excel/worksheet_functions.h"

#include <algorithm>
#include <string>

#include "office/text.h"

namespace libreoffice::excel {

namespace {

/// What a cell holds.
constexpr std::size_t longestText = 32767;

Value rept(const CallArguments& arguments) {
    const std::string text = arguments.at(0).toText();
    const std::int32_t times = arguments.at(1).toLong();
    if (times < 0 || text.size() * static_cast<std::size_t>(times) > longestText) {
        throw Failure(FailureNumber::TypeMismatch, arguments.source(),
                      "A text can't be repeated so often");
    }
    std::string all;
    for (std::int32_t i = 0; i < times; ++i) all += text;
    return all;
}

/// Unlike the plain `Trim`, that of worksheets makes inner runs of blanks one blank, too.
std::string trimmed(const std::string& text) {
    std::string result;
    for (const char c : office::trim(text)) {
        if (c != ' ' || result.back() != ' ') result += c;
    }
    return result;
}

}  // namespace

void addWorksheetFunctions(office::MemberTable<Application>& table) {
    table
        .method("Rept", {"Arg1", "Arg2"},
                [](Application&, const CallArguments& arguments) { return rept(arguments); })
        .method("Substitute", {"Arg1", "Arg2", "Arg3"},
                [](Application&, const CallArguments& arguments) {
                    const std::string what = arguments.at(1).toText();
                    const std::string text = arguments.at(0).toText();
                    return what.empty()
                               ? Value(text)
                               : Value(office::replaceAll(text, what, arguments.at(2).toText()));
                })
        .method("Trim", {"Arg1"},
                [](Application&, const CallArguments& arguments) {
                    return Value(trimmed(arguments.at(0).toText()));
                })
        .method("Max", {"Arg1", "Arg2"}, [](Application&, const CallArguments& arguments) {
            return Value(std::max(arguments.at(0).toDouble(), arguments.at(1).toDouble()));
        });
}

}  // namespace libreoffice::excel
