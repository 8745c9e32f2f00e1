#include "office/model/item_index.h"

#include <fmt/format.h>

#include <utility>

#include "office/failure.h"

namespace office::model {

ItemIndex::ItemIndex(const Value& index, std::string source)
    : source_(std::move(source)),
      isName_(index.isText()) {
    if (isName_) {
        name_ = index.toText();
    } else {
        place_ = index.toLong();
    }
}

std::size_t ItemIndex::placeBelow(std::size_t count) const {
    if (place_ < 1 || static_cast<std::size_t>(place_) > count) fail();
    return static_cast<std::size_t>(place_) - 1;
}

void ItemIndex::fail() const {
    const std::string wanted = isName_ ? fmt::format("\"{}\"", name_) : fmt::format("{}", place_);
    throw Failure(FailureNumber::SubscriptOutOfRange, source_,
                  fmt::format("Subscript out of range: there is no {}", wanted));
}

}  // namespace office::model
