#include "office/package/workbook/sheet_head.h"

#include <utility>

#include "office/text.h"

namespace office::package {

namespace {

/// The root's name with its prefix; empty if the markup isn't in UTF-8, since then the head alone
/// can't be written in another encoding than the rest.
std::string_view rootName(std::string_view bytes) {
    auto at = bytes.find('<');
    if (at != std::string_view::npos && bytes.substr(at).starts_with("<?xml")) {
        const std::string declaration = lowerCase(bytes.substr(at, bytes.find('>', at) - at));
        const bool isOther = declaration.find("encoding") != std::string::npos &&
                             declaration.find("utf-8") == std::string::npos;
        if (isOther) return {};
    }
    while (at != std::string_view::npos && at + 1 < bytes.size() &&
           (bytes[at + 1] == '?' || bytes[at + 1] == '!'))
        at = bytes.find('<', at + 1);
    if (at >= bytes.size()) return {};
    const auto end = bytes.find_first_of(" \t\r\n/>", at);
    return end == std::string_view::npos ? std::string_view() : bytes.substr(at + 1, end - at - 1);
}

}  // namespace

SheetHead::SheetHead(std::string_view bytes, std::string_view part) : SheetHead(cut(bytes), part) {}

SheetHead::SheetHead(Cut cut, std::string_view part)
    : closing_(std::move(cut.closing)),
      rest_(cut.rest),
      xml_(cut.head, part) {}

SheetHead::Cut SheetHead::cut(std::string_view bytes) {
    const std::string_view root = rootName(bytes);
    const std::string prefix(root.substr(0, root.find(':') + 1));
    auto end = std::string_view::npos;
    for (const char* name : {"sheetData", "drawing"}) {
        if (!root.empty() && end == std::string_view::npos) end = bytes.find("<" + prefix + name);
    }
    if (end == std::string_view::npos) return {std::string(bytes), {}, {}};
    std::string closing = "</" + std::string(root) + ">";
    return {std::string(bytes.substr(0, end)) + closing, closing, bytes.substr(end)};
}

std::string SheetHead::bytes() const {
    std::string all = xml_.bytes();
    if (closing_.empty()) return all;
    // An element with nothing in it closes itself.
    if (all.ends_with(closing_))
        all.resize(all.size() - closing_.size());
    else
        all.replace(all.rfind("/>"), std::string::npos, ">");
    return all + rest_;
}

}  // namespace office::package
