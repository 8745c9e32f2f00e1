#include "office/vector_file.h"

#include <fmt/format.h>
#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>
#include <sstream>
#include <utility>

#include "office/failure.h"
#include "office/text.h"
#include "office/units.h"

namespace office {

namespace {

[[noreturn]] void fail(const std::string& what, std::string_view why) {
    refuse("AddPicture", fmt::format("{} can't be used as a picture: {}", what, why));
}

std::uint32_t numberAt(std::string_view bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = 4; i > 0; --i)
        number = number << 8 | static_cast<std::uint8_t>(bytes[at + i - 1]);
    return number;
}

bool looksLikeEmf(std::string_view bytes) {
    constexpr std::size_t header = 88;
    constexpr std::size_t signature = 40;
    return bytes.size() >= header && numberAt(bytes, 0) == 1 &&
           bytes.substr(signature, 4) == " EMF";
}

/// The frame is left, top, right and bottom in hundredths of a millimetre.
void takeEmfSize(VectorFile& file, const std::string& what) {
    constexpr std::size_t frame = 24;
    constexpr std::size_t length = 48;
    const auto side = [&](std::size_t from, std::size_t to) {
        constexpr double hundredthMmPerPoint = mmPerInch * 100 / pointsPerInch;
        return (static_cast<std::int32_t>(numberAt(file.bytes, to)) -
                static_cast<double>(static_cast<std::int32_t>(numberAt(file.bytes, from)))) /
               hundredthMmPerPoint;
    };
    file.widthPt = side(frame, frame + 8);
    file.heightPt = side(frame + 4, frame + 12);
    if (numberAt(file.bytes, length) > file.bytes.size()) fail(what, "it ends too early");
}

/// Without the prefix of its name space.
std::string_view localName(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// A style may spell its words with escapes, and has more ways than one to name a file.
bool staysInside(const std::string& style) {
    for (const std::string_view way : {"\\", "@import", "image(", "image-set(", "src("}) {
        if (style.find(way) != std::string::npos) return false;
    }
    constexpr std::string_view reference = "url(";
    for (std::size_t at = style.find(reference); at != std::string::npos;
         at = style.find(reference, at + 1)) {
        const std::size_t target = style.find_first_not_of(" \t\r\n'\"", at + reference.size());
        if (target == std::string::npos || style[target] != '#') return false;
    }
    return true;
}

bool isOwnTarget(std::string_view target) {
    const std::string lower = lowerCase(trim(target));
    if (lower.empty() || lower.front() == '#') return true;
    constexpr std::array<std::string_view, 4> bitmaps = {"data:image/png", "data:image/jpeg",
                                                         "data:image/jpg", "data:image/gif"};
    return std::any_of(bitmaps.begin(), bitmaps.end(), [&](std::string_view bitmap) {
        return lower.starts_with(bitmap) && isOneOf(lower.substr(bitmap.size(), 1), {";", ","});
    });
}

/// Why an element may not go into a document; nothing if it may.
const char* objectionTo(const pugi::xml_node& node) {
    if (node.type() == pugi::node_pi) return "it refers to a style sheet";
    const bool isStyle = lowerCase(localName(node.parent().name())) == "style";
    if (isStyle && !staysInside(lowerCase(node.value()))) return "it refers to another file";
    const std::string name = lowerCase(localName(node.name()));
    if (isOneOf(name, {"script", "handler", "listener"})) return "it holds a script";
    if (isOneOf(name, {"foreignobject", "iframe", "object", "embed", "audio", "video", "canvas",
                       "set", "discard"}) ||
        name.starts_with("animate"))
        return "it holds more than a picture";
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const std::string_view key = localName(attribute.name());
        if (lowerCase(key).starts_with("on")) return "it holds a script";
        const bool isReference = isOneOf(key, {"href", "src", "base"});
        if (isReference ? !isOwnTarget(attribute.value())
                        : !staysInside(lowerCase(attribute.value())))
            return "it refers to another file";
    }
    return nullptr;
}

/// A length as an SVG gives it, in points. None if it goes by what is around the picture.
std::optional<double> lengthPt(const std::string& text) {
    const std::string trimmed = lowerCase(trim(text));
    const std::size_t end = trimmed.find_first_not_of("0123456789.+-");
    const auto number = numberOf(trimmed.substr(0, end));
    if (!number) return std::nullopt;
    const std::string unit = end == std::string::npos ? "px" : trimmed.substr(end);
    const double points = pointsPer(unit);
    return points > 0 ? std::optional(*number * points) : std::nullopt;
}

/// The size that the root says; in pixels that of its view box where it says none.
void takeSvgSize(VectorFile& file, const pugi::xml_node& root) {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    std::istringstream(replaceAll(root.attribute("viewBox").value(), ",", " ")) >> left >> top >>
        width >> height;
    const auto across = lengthPt(root.attribute("width").value());
    const auto down = lengthPt(root.attribute("height").value());
    file.widthPt = across.value_or(width * pointsPerPixel);
    file.heightPt = down.value_or(height * pointsPerPixel);
    if (across && !down && width > 0) file.heightPt = *across * height / width;
    if (down && !across && height > 0) file.widthPt = *down * width / height;
}

void takeSvg(VectorFile& file, const std::string& what) {
    pugi::xml_document document;
    constexpr unsigned all = pugi::parse_full | pugi::parse_ws_pcdata;
    const auto result =
        document.load_buffer(file.bytes.data(), file.bytes.size(), all & ~pugi::parse_comments);
    const pugi::xml_node root = document.document_element();
    if (!result || localName(root.name()) != "svg") fail(what, "it is no SVG that can be read");
    const pugi::xml_node type =
        document.find_child([](const auto& node) { return node.type() == pugi::node_doctype; });
    if (std::strchr(type.value(), '[') != nullptr) fail(what, "its document type declares things");
    for (pugi::xml_node node = document.first_child(); node;) {
        if (const char* objection = objectionTo(node)) fail(what, objection);
        if (node.first_child()) {
            node = node.first_child();
            continue;
        }
        while (node && !node.next_sibling()) node = node.parent();
        node = node.next_sibling();
    }
    takeSvgSize(file, root);
    if (!type && result.encoding == pugi::encoding_utf8) return;
    document.remove_child(type);
    document.remove_child(document.find_child(
        [](const auto& node) { return node.type() == pugi::node_declaration; }));
    std::ostringstream written;
    document.save(written, "", pugi::format_raw, pugi::encoding_utf8);
    file.bytes = written.str();
}

}  // namespace

bool looksLikeVectors(std::string_view bytes) {
    if (looksLikeEmf(bytes)) return true;
    constexpr std::string_view packed = "\x1f\x8b";
    // As UTF-8 or UTF-16, with or without a mark ahead.
    const std::size_t begin =
        bytes.find_first_not_of(std::string_view("\xEF\xBB\xBF\xFE\xFF\0 \t\r\n", 10));
    return bytes.starts_with(packed) || (begin != std::string_view::npos && bytes[begin] == '<');
}

VectorFile vectorFileOf(std::string bytes, const std::string& what) {
    VectorFile file{.kind = looksLikeEmf(bytes) ? PictureKind::Emf : PictureKind::Svg,
                    .bytes = std::move(bytes)};
    if (file.kind == PictureKind::Emf) {
        takeEmfSize(file, what);
    } else {
        takeSvg(file, what);
    }
    if (!(file.widthPt > 0 && file.heightPt > 0)) fail(what, "it says no size");
    return file;
}

}  // namespace office
