#pragma once

#include <string>
#include <vector>

#include "office/text.h"
#include "office/value.h"

namespace office::model {

/// What an index of `Item` asks for: a place, counted from 1, or a name.
class ItemIndex {
public:
    ItemIndex(const Value& index, std::string source);

    [[nodiscard]] bool isName() const { return isName_; }
    [[nodiscard]] const std::string& name() const { return name_; }
    /// The same place counted from 0. `Failure` 9 if it is not below the count.
    [[nodiscard]] std::size_t placeBelow(std::size_t count) const;
    /// `Failure` 9: there is no such item.
    [[noreturn]] void fail() const;

    /// The item of the place, or of the name that `nameOf` gives. `Failure` 9 if there is none.
    template <class Item, class NameOf>
    [[nodiscard]] const Item& of(const std::vector<Item>& items, const NameOf& nameOf) const {
        if (!isName_) return items[placeBelow(items.size())];
        for (const Item& item : items) {
            if (sameIgnoringCase(nameOf(item), name_)) return item;
        }
        fail();
    }

private:
    std::string source_;
    std::string name_;
    std::int32_t place_ = 0;
    bool isName_;
};

}  // namespace office::model
