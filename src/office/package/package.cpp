#include "office/package/package.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <unordered_map>
#include <utility>
#include <variant>

#include "office/package/compound_file.h"
#include "office/package/content_types.h"
#include "office/package/part_name.h"
#include "office/package/zip_archive.h"

namespace office::package {

namespace {

constexpr std::string_view contentTypesPart = "/[Content_Types].xml";
constexpr std::string_view relationshipsType =
    "application/vnd.openxmlformats-package.relationships+xml";

struct AsRead {};
/// Copies of a part share them.
using SharedBytes = std::shared_ptr<const std::string>;
/// On their way.
using LateBytes = std::shared_future<std::string>;

struct Part {
    /// Empty for what is only carried, such as the entry of a folder.
    std::string name;
    /// Of the archive; none for a new one.
    std::optional<std::uint64_t> index;
    Storage storage = Storage::Deflated;
    bool isRemoved = false;
    bool wasRead = false;
    std::variant<AsRead, SharedBytes, LateBytes, PartsAside::Place> content = {};

    [[nodiscard]] const std::string* bytes() const {
        const auto* held = std::get_if<SharedBytes>(&content);
        return held != nullptr ? held->get() : nullptr;
    }
    [[nodiscard]] const LateBytes* late() const { return std::get_if<LateBytes>(&content); }
    [[nodiscard]] const PartsAside::Place* aside() const {
        return std::get_if<PartsAside::Place>(&content);
    }
    void setBytes(std::string to) { content = std::make_shared<const std::string>(std::move(to)); }
    /// Waits for what is on its way.
    void settle() {
        if (late() != nullptr) setBytes(late()->get());
    }
    /// The content, unless it is as it was read or has been put aside; what is on its way is
    /// waited for, not copied.
    [[nodiscard]] std::optional<std::string_view> changed() const {
        if (late() != nullptr) return late()->get();
        return bytes() != nullptr ? std::optional<std::string_view>(*bytes()) : std::nullopt;
    }
};

}  // namespace

class Package::Content {
public:
    Content(ZipInput from, const Limits& within)
        : limits(within),
          input(std::move(from)),
          archive(checked(input), limits) {
        for (std::uint64_t index = 0; index < archive.entries().size(); ++index) take(index);
        if (find(contentTypesPart) == nullptr)
            throw PackageError(Fault::NotAPackage, "it is a ZIP file without content types");
    }

    Part* find(std::string_view name) {
        const auto found = byKey.find(partKey(name));
        return found == byKey.end() ? nullptr : &parts[found->second];
    }

    Part& at(std::string_view name) {
        Part* part = find(name);
        if (part == nullptr)
            throw PackageError(Fault::Damaged, fmt::format("it has no part {}", shown(name)));
        part->settle();
        return *part;
    }

    std::string read(std::string_view name, std::uint64_t most) {
        Part& part = at(name);
        if (part.bytes() != nullptr) return *part.bytes();
        if (part.aside() != nullptr) return aside.read(*part.aside());
        const std::uint64_t size = archive.entries()[*part.index].bytes;
        if (size > most)
            throw PackageError(Fault::TooLarge,
                               fmt::format("its part {} takes {} bytes", shown(name), size));
        std::uint64_t& counted = std::exchange(part.wasRead, true) ? bytesReadAgain : bytesRead;
        if (size > limits.bytesRead - counted)
            throw PackageError(Fault::TooLarge, "its parts are too large together");
        counted += size;
        return archive.read(*part.index);
    }

    /// Whether these are the new bytes of a part.
    [[nodiscard]] bool holds(const Part& part, const std::string& bytes) {
        if (part.bytes() != nullptr) return *part.bytes() == bytes;
        const auto* place = part.aside();
        return place != nullptr && place->bytes == bytes.size() && aside.read(*place) == bytes;
    }

    Part& place(std::string_view name, Storage storage) {
        const auto [found, isNew] = byKey.try_emplace(partKey(name), parts.size());
        if (isNew) parts.push_back({std::string(name), {}, storage});
        return parts[found->second];
    }

    void put(std::string_view name, std::string bytes, Storage storage) {
        place(name, storage).setBytes(std::move(bytes));
    }

    /// The same for a part that is rather written than read.
    void putAside(std::string_view name, std::string bytes, Storage storage) {
        Part& part = place(name, storage);
        if (const auto there = aside.put(bytes))
            part.content = *there;
        else
            part.setBytes(std::move(bytes));
    }

    void putCopy(std::string_view name, std::string_view of) {
        const Part original = at(of);
        place(name, original.storage).content = original.content;
    }

    void putLate(std::string_view name, std::shared_future<std::string> bytes) {
        putDrawnAside();
        place(name, Storage::Stored).content = std::move(bytes);
        onTheirWay.push_back(partKey(name));
    }

    void remove(std::string_view name) {
        const auto found = byKey.find(partKey(name));
        if (found == byKey.end()) return;
        Part& part = parts[found->second];
        part.isRemoved = true;
        part.content = AsRead();
        byKey.erase(found);
        contentTypes().remove(name);
    }

    ContentTypes& contentTypes() {
        if (!types) types.emplace(read(contentTypesPart, limits.markupBytes));
        return *types;
    }

    Relationships& relationshipsOf(std::string_view name) {
        auto& found = relationships[partKey(name)];
        if (!found) {
            const std::string part = relationshipsPartOf(name);
            found = std::make_unique<Relationships>(
                std::string(name),
                find(part) != nullptr ? read(part, limits.markupBytes) : std::string());
        }
        return *found;
    }

    void putMarkup() {
        for (const auto& [source, one] : relationships) {
            if (!one || !one->isChanged()) continue;
            const std::string part = relationshipsPartOf(one->source());
            contentTypes().setByExtension(part, relationshipsType);
            put(part, one->xml(), Storage::Deflated);
        }
        if (types && types->isChanged()) put(contentTypesPart, types->xml(), Storage::Deflated);
    }

    [[nodiscard]] std::vector<ZipChange> changes() const {
        std::vector<ZipChange> found;
        for (const Part& part : parts) {
            if (part.isRemoved && part.index) found.push_back({part.index, {}, {}, {}});
            const std::optional<std::string_view> bytes = part.changed();
            const auto* place = part.aside();
            if (!bytes && place == nullptr) continue;
            found.push_back({part.index, part.name.substr(1), bytes, part.storage,
                             place != nullptr ? std::optional(*place) : std::nullopt});
        }
        return found;
    }

    const Limits limits;
    ZipInput input;
    ZipArchive archive;
    std::vector<Part> parts;
    PartsAside aside;
    std::unordered_map<std::string, std::size_t> byKey;
    std::unordered_map<std::string, std::unique_ptr<Relationships>> relationships;
    /// The names of what has been added, by the hash of the bytes.
    std::unordered_multimap<std::size_t, std::string> media;
    /// Likewise of what was added late, by its look.
    std::unordered_map<std::string, std::string> lateMedia;
    /// By stem and ending, the numbers up to which all names are taken.
    std::unordered_map<std::string, std::size_t> takenNumbers;
    std::uint64_t bytesRead = 0;
    std::uint64_t bytesReadAgain = 0;

private:
    /// What has come meanwhile. A picture that could not be drawn fails where it is asked for.
    void putDrawnAside() {
        std::erase_if(onTheirWay, [&](const std::string& key) {
            const auto found = byKey.find(key);
            if (found == byKey.end()) return true;
            Part& part = parts[found->second];
            if (part.late() == nullptr) return true;
            if (part.late()->wait_for(std::chrono::seconds(0)) != std::future_status::ready)
                return false;
            try {
                if (const auto there = aside.put(part.late()->get())) part.content = *there;
            } catch (const std::exception&) {
                return true;
            }
            return true;
        });
    }

    static ZipInput& checked(ZipInput& input) {
        refuseCompoundFile(input);
        return input;
    }

    void take(std::uint64_t index) {
        const ZipEntry& entry = archive.entries()[index];
        if (entry.name.empty() || entry.name.ends_with('/') || entry.name.ends_with('\\')) {
            parts.push_back({{}, index});
            return;
        }
        const std::string name = partOfEntry(entry.name);
        if (entry.isEncrypted)
            throw PackageError(Fault::Password,
                               fmt::format("its part {} is encrypted", shown(name)));
        if (!byKey.try_emplace(partKey(name), parts.size()).second)
            throw PackageError(Fault::Damaged,
                               fmt::format("it holds two parts named {}", shown(name)));
        parts.push_back({name, index});
    }

    std::optional<ContentTypes> types;
    /// The keys of the parts whose bytes were, when it was last looked.
    std::vector<std::string> onTheirWay;
};

Package::Package(std::unique_ptr<Content> content) : content_(std::move(content)) {}
Package::Package(Package&&) noexcept = default;
Package& Package::operator=(Package&&) noexcept = default;
Package::~Package() = default;

Package Package::open(const std::filesystem::path& file, const Limits& limits) {
    return Package(std::make_unique<Content>(ZipInput(file), limits));
}

Package Package::fromBytes(std::string_view file, const Limits& limits) {
    return Package(std::make_unique<Content>(ZipInput(file), limits));
}

bool Package::has(std::string_view part) const {
    return content_->find(part) != nullptr;
}

std::vector<std::string> Package::parts() const {
    std::vector<std::string> names;
    for (const Part& part : content_->parts) {
        if (!part.name.empty() && !part.isRemoved &&
            partKey(part.name) != partKey(contentTypesPart))
            names.push_back(part.name);
    }
    return names;
}

std::string Package::contentTypeOf(std::string_view part) const {
    return content_->contentTypes().of(part);
}

std::string Package::read(std::string_view part) const {
    return content_->read(part, content_->limits.partBytes);
}

std::string Package::head(std::string_view part, std::size_t most) const {
    const auto& found = content_->at(part);
    if (found.bytes() != nullptr) return found.bytes()->substr(0, most);
    if (const auto* place = found.aside())
        return content_->aside.read({place->start, std::min(place->bytes, most)});
    return content_->archive.read(*found.index, most);
}

void Package::replace(std::string_view part, std::string bytes) {
    content_->at(part).setBytes(std::move(bytes));
}

void Package::add(std::string_view part, std::string_view contentType, std::string bytes,
                  Storage storage) {
    content_->contentTypes().set(part, contentType);
    content_->putAside(part, std::move(bytes), storage);
}

void Package::addCopy(std::string_view part, std::string_view of) {
    content_->contentTypes().set(part, contentTypeOf(of));
    content_->putCopy(part, of);
}

void Package::remove(std::string_view part) {
    content_->at(part);
    content_->relationships.erase(partKey(part));
    content_->takenNumbers.clear();
    content_->remove(relationshipsPartOf(part));
    content_->remove(part);
}

void Package::removeWithTargets(std::string_view part) {
    std::vector<std::string> all = {std::string(part)};
    const Relationships& relationships = relationshipsOf(part);
    for (const Relationship& one : relationships.all()) {
        if (!one.isExternal) all.push_back(relationships.partOf(one));
    }
    // A part may lead to itself.
    for (const std::string& one : all) {
        if (has(one)) remove(one);
    }
}

void Package::setContentType(std::string_view part, std::string_view contentType) {
    content_->contentTypes().set(part, contentType);
}

std::string Package::addMedia(std::string_view stem, std::string_view ending,
                              std::string_view contentType, std::string bytes, Storage storage) {
    const std::size_t hash = std::hash<std::string_view>()(bytes);
    const auto [first, last] = content_->media.equal_range(hash);
    for (auto one = first; one != last; ++one) {
        const Part* part = content_->find(one->second);
        if (part != nullptr && one->second.ends_with(ending) && content_->holds(*part, bytes))
            return one->second;
    }
    std::string name = freeName(stem, ending);
    content_->putAside(name, std::move(bytes), storage);
    content_->contentTypes().setByExtension(name, contentType);
    content_->media.emplace(hash, name);
    return name;
}

std::string Package::addMedia(std::string_view stem, std::string_view ending,
                              std::string_view contentType, std::shared_future<std::string> bytes,
                              const std::string& look) {
    std::string& name = content_->lateMedia[look];
    if (!name.empty() && has(name)) return name;
    name = freeName(stem, ending);
    content_->putLate(name, std::move(bytes));
    content_->contentTypes().setByExtension(name, contentType);
    return name;
}

std::string Package::freeName(std::string_view stem, std::string_view ending) const {
    // Many names are asked for one after the other.
    std::size_t& taken = content_->takenNumbers[fmt::format("{}|{}", stem, ending)];
    while (true) {
        std::string name = fmt::format("{}{}{}", stem, taken + 1, ending);
        if (!has(name) && !has(relationshipsPartOf(name))) return name;
        ++taken;
    }
}

Relationships& Package::relationshipsOf(std::string_view part) {
    return content_->relationshipsOf(part);
}

std::string Package::partOfType(std::string_view source, std::string_view type) {
    return partOf(relationshipsOf(source), relationshipsOf(source).ofType(type));
}

std::string Package::partOfId(std::string_view source, std::string_view id) {
    return partOf(relationshipsOf(source), relationshipsOf(source).withId(id));
}

std::string Package::partOf(const Relationships& all, const Relationship* one) const {
    if (one == nullptr || one->isExternal) return {};
    std::string part = all.partOf(*one);
    return has(part) ? part : std::string();
}

void Package::save(const std::filesystem::path& file) {
    content_->putMarkup();
    ZipOutput output(file);
    content_->archive.write(output, content_->changes(), content_->aside);
}

std::string Package::bytes() {
    content_->putMarkup();
    std::string bytes;
    ZipOutput output(bytes);
    content_->archive.write(output, content_->changes(), content_->aside);
    return bytes;
}

}  // namespace office::package
