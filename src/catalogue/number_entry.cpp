#include "catalogue/number_entry.h"

#include "office/text.h"

namespace catalogue {

bool isNumericEntry(std::string_view text) {
    // Both decimal separators: which one a keyboard types is the user's own.
    return office::numberOf(office::replaceAll(text, ",", ".")).has_value();
}

std::string Validate_Number_Entry(const std::string& text) {
    if (text.empty() || text == "-" || isNumericEntry(text)) return text;
    // Whatever has been typed last.
    return text.substr(0, text.size() - office::charactersOf(text).back().bytes.size());
}

}  // namespace catalogue
