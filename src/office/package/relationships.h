#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace office::package {

struct Relationship {
    std::string id;
    std::string type;
    /// As it stands in the file.
    std::string target;
    bool isExternal = false;
};

/// The relationships of one part, or of the package. They keep their order and what else stands
/// with them.
class Relationships {
public:
    /// Of the part `source` ("/" for the package), from the XML of its relationships part; empty
    /// for a part that has none. `PackageError` Damaged.
    explicit Relationships(std::string source, std::string_view xml = {});

    [[nodiscard]] const std::vector<Relationship>& all() const { return all_; }
    /// Null if there is none.
    [[nodiscard]] const Relationship* withId(std::string_view id) const;
    /// The first of a type. A type of the standard is named by its last word ("slideLayout") and
    /// found under both its transitional and its strict address; others by their full address.
    [[nodiscard]] const Relationship* ofType(std::string_view type) const;
    /// The part that a relationship leads to. `PackageError` Damaged for one that is external or
    /// leads out of the package.
    [[nodiscard]] std::string partOf(const Relationship& relationship) const;

    /// The id of a relationship to a part; one of the same type and part that is there already is
    /// taken again. `type` as in `ofType`, written in its transitional form.
    std::string add(std::string_view type, std::string_view part);
    /// The id of a new relationship to something outside of the package, by its address.
    std::string addExternal(std::string_view type, const std::string& address);
    void remove(std::string id) { removeAll({std::move(id)}); }
    /// Takes hardly longer than for one.
    void removeAll(const std::set<std::string>& ids);

    [[nodiscard]] const std::string& source() const { return source_; }
    [[nodiscard]] bool isChanged() const { return !added_.empty() || !removed_.empty(); }
    /// The whole part, by the smallest edit of what it was read as.
    [[nodiscard]] std::string xml() const;

private:
    [[nodiscard]] std::string destinationOf(const Relationship& relationship) const;
    std::string freeId();
    std::string append(Relationship added);

    std::string source_;
    std::string xml_;
    std::vector<Relationship> all_;
    /// The ids that aren't, or aren't any more, as they were read.
    std::unordered_set<std::string> added_;
    std::unordered_set<std::string> removed_;
    /// The ids by type and part.
    std::unordered_map<std::string, std::string> byDestination_;
    std::unordered_set<std::string> ids_;
    /// Where each stands.
    std::unordered_map<std::string, std::size_t> places_;
    std::size_t lastNumber_ = 0;
};

}  // namespace office::package
