#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace office::drawing {

/// Says what in a metafile can't be read.
struct Unknown : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The values of a metafile, one after the other. What ends too early is `Unknown`.
class Values {
public:
    explicit Values(std::string_view bytes) : bytes_(bytes) {}

    template <class Number>
    Number next() {
        const std::string_view bytes = take(sizeof(Number));
        Number value{};
        static_assert(std::endian::native == std::endian::little);
        std::memcpy(&value, bytes.data(), sizeof value);
        return value;
    }
    std::uint16_t word() { return next<std::uint16_t>(); }
    std::int32_t number() { return next<std::int32_t>(); }
    bool flag() { return next<std::uint8_t>() != 0; }

    std::string_view take(std::size_t count) {
        if (count > bytes_.size()) throw Unknown("damage");
        const std::string_view taken = bytes_.substr(0, count);
        bytes_.remove_prefix(count);
        return taken;
    }
    /// A part with a version and a length of its own.
    Values part() {
        version_ = word();
        return Values(take(next<std::uint32_t>()));
    }
    /// Of the part that was taken last.
    [[nodiscard]] std::uint16_t version() const { return version_; }
    /// How many bytes are still to be taken.
    [[nodiscard]] std::size_t left() const { return bytes_.size(); }
    [[nodiscard]] bool isEmpty() const { return bytes_.empty(); }

private:
    std::string_view bytes_;
    std::uint16_t version_ = 0;
};

}  // namespace office::drawing
