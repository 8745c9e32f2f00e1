#pragma once

#include <pugixml.hpp>

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "office/model/word/text_document.h"

namespace office::package {

/// The captions of a document. A label's numbers come from a field that counts under a name made of
/// the label; labels that make the same name get a number behind it and still count apart.
class Captions {
public:
    /// `text` is what holds the whole text, and has to outlive it.
    explicit Captions(pugi::xml_node text) : text_(text) {}

    /// Writes a caption into a new paragraph, and numbers it. `isLast` tells that no caption
    /// stands behind it; otherwise those of its label that do are numbered anew.
    void write(pugi::xml_node paragraph, const office::model::word::Caption& caption, bool isLast);

private:
    /// What the text counts under one name.
    struct Counted {
        std::int32_t last = 0;
        /// What stands ahead of its numbers, each once.
        std::set<std::string> labels;
    };
    using ByName = std::map<std::string, Counted>;

    ByName& known();
    [[nodiscard]] std::string nameFor(const std::string& label);
    void renumber(const std::string& name);

    pugi::xml_node text_;
    /// By the name in small letters.
    std::optional<ByName> known_;
};

}  // namespace office::package
