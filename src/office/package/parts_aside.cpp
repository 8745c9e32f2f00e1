#include "office/package/parts_aside.h"

#include "office/package/package.h"

namespace office::package {

namespace {

bool goTo(std::FILE* file, std::uint64_t place) {
    return std::fseek(file, static_cast<long>(place), SEEK_SET) == 0;
}

}  // namespace

std::optional<PartsAside::Place> PartsAside::put(std::string_view bytes) {
    // Markup is smaller as a rule, and is read again.
    constexpr std::size_t least = 16 << 10;
    if (bytes.size() < least || isFull_) return std::nullopt;
    if (!file_) file_.reset(std::tmpfile());
    // What is kept back in the stream would come up as a failure of another part.
    const bool isKept = file_ && goTo(file_.get(), end_) &&
                        std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size() &&
                        std::fflush(file_.get()) == 0;
    if (!isKept) {
        isFull_ = true;
        return std::nullopt;
    }
    const Place place{end_, bytes.size()};
    end_ += bytes.size();
    return place;
}

std::string PartsAside::read(const Place& place) {
    std::string bytes(place.bytes, '\0');
    if (!read(place.start, bytes.data(), place.bytes))
        throw PackageError(Fault::Unreadable,
                           "its new parts can't be read from the temporary file");
    return bytes;
}

bool PartsAside::read(std::uint64_t from, char* to, std::uint64_t count) {
    return goTo(file_.get(), from) && std::fread(to, 1, count, file_.get()) == count;
}

}  // namespace office::package
