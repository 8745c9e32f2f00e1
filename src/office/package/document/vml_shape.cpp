#include "office/package/document/vml_shape.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "office/package/xml.h"
#include "office/text.h"
#include "office/units.h"

namespace office::package {

namespace {

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// What a shape says of itself: "width:120pt;height:2in".
class VmlStyle {
public:
    explicit VmlStyle(pugi::xml_node shape) : shape_(shape) {
        std::string_view rest = shape.attribute("style").value();
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find(';'), rest.size());
            const std::string_view one = rest.substr(0, end);
            rest.remove_prefix(std::min(end + 1, rest.size()));
            const auto colon = one.find(':');
            if (colon == std::string_view::npos) continue;
            all_.emplace_back(lowerCase(std::string(withoutBlanks(one.substr(0, colon)))),
                              withoutBlanks(one.substr(colon + 1)));
        }
    }

    [[nodiscard]] std::string at(std::string_view name) const {
        const auto found = std::find_if(all_.begin(), all_.end(),
                                        [&](const auto& one) { return one.first == name; });
        return found == all_.end() ? std::string() : found->second;
    }

    void set(const std::string& name, const std::string& value) {
        std::erase_if(all_, [&](const auto& one) { return one.first == name; });
        all_.emplace_back(name, value);
        std::string text;
        for (const auto& [key, said] : all_)
            text += fmt::format("{}{}:{}", text.empty() ? "" : ";", key, said);
        attributeFor(shape_, "style").set_value(text.c_str());
    }

private:
    pugi::xml_node shape_;
    std::vector<std::pair<std::string, std::string>> all_;
};

/// A length that names no unit counts pixels.
double pointsIn(const std::string& length) {
    const double points =
        pointsPer(length.substr(length.size() - std::min<std::size_t>(length.size(), 2)));
    return leadingNumber(length) * (points > 0 ? points : pointsPer("px"));
}

std::string inPoints(double length) {
    return fmt::format("{:.2f}pt", length);
}

}  // namespace

pugi::xml_node vmlShapeIn(pugi::xml_node holder) {
    return holder.find_child([](const pugi::xml_node& child) {
        return child.type() == pugi::node_element && localName(child) != "shapetype" &&
               isNamed(child, ns::vml, localName(child));
    });
}

bool floats(pugi::xml_node vmlShape) {
    return VmlStyle(vmlShape).at("position") == "absolute";
}

Size sizeOf(pugi::xml_node vmlShape) {
    const VmlStyle style(vmlShape);
    return {pointsIn(style.at("width")), pointsIn(style.at("height"))};
}

void resize(pugi::xml_node vmlShape, const Size& size) {
    VmlStyle style(vmlShape);
    style.set("width", inPoints(size.width));
    style.set("height", inPoints(size.height));
}

void setLeft(pugi::xml_node vmlShape, double left) {
    VmlStyle style(vmlShape);
    style.set("margin-left", inPoints(left));
    style.set("mso-position-horizontal", "absolute");
    style.set("mso-position-horizontal-relative", "margin");
}

}  // namespace office::package
