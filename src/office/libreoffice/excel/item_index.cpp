#include <fmt/format.h>

#include <utility>

#include "office/failure.h"
#include "office/libreoffice/excel/objects.h"

namespace libreoffice::excel {

ItemIndex::ItemIndex(const office::Value& index, std::string source)
    : source_(std::move(source)),
      isName_(index.isText()) {
    if (isName_) {
        name_ = index.toText();
    } else {
        place_ = index.toLong() - 1;
    }
}

std::size_t ItemIndex::placeBelow(std::size_t count) const {
    if (place_ < 0 || static_cast<std::size_t>(place_) >= count) fail();
    return static_cast<std::size_t>(place_);
}

void ItemIndex::fail() const {
    const std::string wanted =
        isName_ ? fmt::format("\"{}\"", name_) : fmt::format("{}", place_ + 1);
    throw office::Failure(office::FailureNumber::SubscriptOutOfRange, source_,
                          fmt::format("Subscript out of range: there is no {}", wanted));
}

}  // namespace libreoffice::excel
